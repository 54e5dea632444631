#include "tests/support/text.h"

#include <algorithm>
#include <sstream>
#include <vector>

namespace test_support {

std::string text(std::string_view raw) {
    std::istringstream stream{std::string(raw)};
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    const auto isBlank = [](const std::string& line) {
        return line.find_first_not_of(' ') == std::string::npos;
    };
    if (!lines.empty() && lines.front().empty()) {
        lines.erase(lines.begin());
    }
    if (!lines.empty() && isBlank(lines.back())) {
        lines.pop_back();
    }
    std::size_t margin = std::string::npos;
    for (const std::string& line : lines) {
        margin = isBlank(line) ? margin : std::min(margin, line.find_first_not_of(' '));
    }
    std::string result;
    for (const std::string& line : lines) {
        result += line.substr(std::min(line.size(), margin)) + "\n";
    }
    return result.substr(0, result.empty() ? 0 : result.size() - 1);
}

}  // namespace test_support
