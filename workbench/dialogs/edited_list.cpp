#include "workbench/dialogs/edited_list.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_ids.h"
#include "workbench/output/display_text.h"

#include "host/base/utf8_path.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>
#include <unordered_map>
#include <utility>

namespace workbench {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kLargestFile = 64U << 20U;

[[noreturn]] void refuseFile(const std::string& file, const std::string& reason) {
    throw Failure(ExitCode::BadInput, file + ": " + reason);
}

/// Takes fields and lines off the beginning of a text.
class Fields {
public:
    Fields(std::string_view text, char separator) : rest_(text), separator_(separator) {}

    [[nodiscard]] bool done() const { return rest_.empty(); }

    [[nodiscard]] std::string_view rest() const { return rest_; }

    /// Skips so many bytes, and the end of the line that they reach.
    void skip(std::size_t count, std::size_t& number) {
        number += static_cast<std::size_t>(std::ranges::count(rest_.substr(0, count), '\n')) + 1;
        rest_.remove_prefix(count);
        takeLineEnd();
    }

    /// All fields up to the end of the line; `number` is moved on by the lines that they take.
    std::vector<EditedList::Field> takeLine(std::size_t& number) {
        std::vector<EditedList::Field> fields;
        do {
            fields.push_back(takeField(number));
        } while (takeSeparator());
        takeLineEnd();
        ++number;
        return fields;
    }

private:
    [[nodiscard]] bool endsField(std::size_t at) const {
        return at >= rest_.size() || rest_[at] == separator_ || rest_[at] == '\r' ||
               rest_[at] == '\n';
    }

    /// Where the quotes end that the rest begins with: after them the field ends as well. 0 where
    /// they are a part of the text.
    [[nodiscard]] std::size_t closingQuote() const {
        for (std::size_t at = 1; !rest_.empty() && rest_.front() == '"';) {
            at = rest_.find('"', at);
            if (at == std::string_view::npos) {
                return 0;
            }
            if (at + 1 < rest_.size() && rest_[at + 1] == '"') {
                at += 2;
                continue;
            }
            return endsField(at + 1) ? at : 0;
        }
        return 0;
    }

    EditedList::Field takeField(std::size_t& number) {
        if (const std::size_t end = closingQuote(); end > 0) {
            EditedList::Field field{.text = "", .raw = std::string(rest_.substr(0, end + 1))};
            for (std::size_t at = 1; at < end; ++at) {
                field.text += rest_[at];
                at += rest_[at] == '"' ? 1U : 0U;
            }
            number += static_cast<std::size_t>(std::ranges::count(field.raw, '\n'));
            rest_.remove_prefix(end + 1);
            return field;
        }
        std::size_t end = 0;
        while (!endsField(end)) {
            ++end;
        }
        const std::string field(rest_.substr(0, end));
        rest_.remove_prefix(end);
        return {.text = field, .raw = field};
    }

    bool takeSeparator() {
        const bool found = !rest_.empty() && rest_.front() == separator_;
        rest_.remove_prefix(found ? 1 : 0);
        return found;
    }

    void takeLineEnd() {
        for (const char each : {'\r', '\n'}) {
            rest_.remove_prefix(!rest_.empty() && rest_.front() == each ? 1 : 0);
        }
    }

    std::string_view rest_;
    char separator_;
};

char separatorOf(std::string_view text) {
    const std::string_view first = text.substr(0, text.find('\n'));
    char best = ';';
    for (const char each : {',', '\t'}) {
        best = std::ranges::count(first, each) > std::ranges::count(first, best) ? each : best;
    }
    return best;
}

bool isEmpty(const std::vector<EditedList::Field>& fields) {
    return std::ranges::all_of(fields, &std::string::empty, &EditedList::Field::text);
}

bool isTotal(const std::vector<EditedList::Field>& fields) {
    return fields.size() > 1 && fields[0].text.empty() &&
           fields[1].text.starts_with(kMassLineBegin);
}

/// Lines that are recognised as a whole, found by what they begin with.
class KnownLines {
public:
    KnownLines(const std::vector<std::string>& lines, char separator) : separator_(separator) {
        for (std::size_t index = 0; index < lines.size(); ++index) {
            const std::string_view line = withoutSeparators(lines[index]);
            byBegin_.emplace(firstLine(line), std::pair(line, index));
        }
    }

    /// The index of the line that a text begins with, and the bytes that it takes there.
    [[nodiscard]] std::optional<std::pair<std::size_t, std::size_t>> find(
        std::string_view text) const {
        std::optional<std::pair<std::size_t, std::size_t>> longest;
        const auto [begin, end] = byBegin_.equal_range(firstLine(text));
        for (auto candidate = begin; candidate != end; ++candidate) {
            const auto& [line, index] = candidate->second;
            const std::size_t count = lengthIn(text, line);
            if (count > (longest ? longest->second : 0)) {
                longest = std::pair(index, count);
            }
        }
        return longest;
    }

private:
    [[nodiscard]] std::string_view withoutSeparators(std::string_view line) const {
        return line.substr(0, line.find_last_not_of(separator_) + 1);
    }

    [[nodiscard]] std::string_view firstLine(std::string_view text) const {
        const std::string_view line = text.substr(0, text.find('\n'));
        return line.substr(0, line.find_last_not_of(std::array{separator_, '\r', '\0'}.data()) + 1);
    }

    /// The bytes of a line at the beginning of a text, whose lines may end in CR LF; 0 for none.
    [[nodiscard]] std::size_t lengthIn(std::string_view text, std::string_view line) const {
        std::size_t at = 0;
        for (const char each : line) {
            at += each == '\n' && text.substr(at).starts_with("\r\n") ? 1U : 0U;
            if (at >= text.size() || text[at] != each) {
                return 0;
            }
            ++at;
        }
        at = std::min(text.find_first_not_of(separator_, at), text.size());
        return at == text.size() || text[at] == '\n' || text[at] == '\r' ? at : 0;
    }

    char separator_;
    std::unordered_multimap<std::string_view, std::pair<std::string_view, std::size_t>> byBegin_;
};

/// A string that is not UTF-8 shows as one with replacement characters that it does not have.
bool isUtf8(std::string_view text) {
    constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
    return text.find(kReplacement) != std::string_view::npos ||
           !std::ranges::any_of(text, [](char each) { return (each & 0x80) != 0; }) ||
           printable(text).find(kReplacement) == std::string::npos;
}

}  // namespace

EditedList parseEditedList(std::string_view text, const std::string& file,
                           const std::vector<std::string>& known) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    text.remove_prefix(text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0);
    if (!isUtf8(text)) {
        refuseFile(file, "is not UTF-8; save the list as \"CSV UTF-8\"");
    }
    EditedList list{.file = file, .content = std::string(text), .captions = {}, .lines = {}};
    const char separator = separatorOf(text);
    const KnownLines knownLines(known, separator);
    Fields fields(text, separator);
    std::size_t number = 1;
    for (const EditedList::Field& caption : fields.takeLine(number)) {
        list.captions.push_back(caption.text);
    }
    if (std::ranges::all_of(list.captions, &std::string::empty)) {
        refuseFile(file, "has no captions in its first line");
    }
    while (!fields.done()) {
        const std::size_t first = number;
        if (const auto found = knownLines.find(fields.rest())) {
            list.lines.push_back({.number = first, .fields = {}, .known = found->first});
            fields.skip(found->second, number);
            continue;
        }
        std::vector<EditedList::Field> line = fields.takeLine(number);
        if (!isEmpty(line) && !isTotal(line)) {
            list.lines.push_back({.number = first, .fields = std::move(line), .known = {}});
        }
    }
    return list;
}

EditedList readEditedList(const std::string& file) {
    const fs::path path = host::fromUtf8(file);
    std::error_code failure;
    const fs::file_status status = fs::status(path, failure);
    if (!fs::exists(status)) {
        refuseFile(file, "no such file");
    }
    if (!fs::is_regular_file(status)) {
        refuseFile(file, "not a file");
    }
    if (fs::file_size(path, failure) > kLargestFile) {
        refuseFile(file, "is larger than 64 MB");
    }
    std::ifstream stream(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    if (!stream) {
        refuseFile(file, "cannot be read");
    }
    return parseEditedList(text, file);
}

}  // namespace workbench
