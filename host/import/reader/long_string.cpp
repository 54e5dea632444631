#include "host/import/reader/long_string.h"

#include <algorithm>

namespace step {

std::optional<LongString> findLongString(std::string_view text) {
    LongString longest = {.line = 0, .bytes = kLongestString};
    std::size_t line = 1;
    for (std::size_t at = 0; at < text.size(); ++at) {
        line += text[at] == '\n' ? 1U : 0U;
        const bool isComment = text.substr(at, 2) == "/*";
        if (text[at] != '\'' && !isComment) {
            continue;
        }
        // A quote in a string is doubled, and so begins another one.
        const std::string_view mark = isComment ? "*/" : "'";
        const std::size_t begin = at + (isComment ? 2 : 1);
        const std::size_t end = std::min(text.find(mark, begin), text.size());
        if (!isComment && end - begin > longest.bytes) {
            longest = {.line = line, .bytes = end - begin};
        }
        line += static_cast<std::size_t>(std::ranges::count(text.substr(begin, end - begin), '\n'));
        at = end + mark.size() - 1;
    }
    return longest.line == 0 ? std::nullopt : std::optional(longest);
}

}  // namespace step
