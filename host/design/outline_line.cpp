#include "host/design/outline_line.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace host {
namespace {

constexpr std::array<std::string_view, 7> kComponentKeys = {
    "name", "number", "description", "material", "box", "measures", "document"};

/// The words after the name, with the quotes taken off.
std::vector<std::string> splitWords(const std::string& text, std::size_t line) {
    std::vector<std::string> words;
    std::string word;
    bool quoted = false;
    bool any = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char letter = text[at];
        if (letter == ' ' && !quoted) {
            if (any) words.push_back(std::exchange(word, {}));
            any = false;
            continue;
        }
        any = true;
        if (letter == '"') {
            quoted = !quoted;
        } else if (quoted && letter == '\\' && at + 1 < text.size()) {
            word += text[++at];
        } else {
            word += letter;
        }
    }
    if (quoted) refuseLine(line, "a text that begins with \" has no end");
    if (any) words.push_back(word);
    return words;
}

AttributeData readAttribute(const std::string& text, std::size_t line) {
    const std::size_t first = text.find('/');
    const std::size_t second = first == std::string::npos ? first : text.find('/', first + 1);
    if (second == std::string::npos) {
        refuseLine(line, "an attribute is written attribute=group/name/value");
    }
    if (first == 0 || second == first + 1) {
        refuseLine(line, "an attribute needs a group and a name");
    }
    return {text.substr(0, first), text.substr(first + 1, second - first - 1),
            text.substr(second + 1)};
}

void readPlace(OutlineLine& line, const std::string& text) {
    const std::vector<double> numbers = readNumbers(text, ',', 3, line.number);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        line.transform.cells[axis * 4 + 3] = numbers[axis];
    }
}

void readWord(OutlineLine& line, const std::string& word) {
    const std::size_t equals = word.find('=');
    const std::string key = word.substr(0, equals);
    const std::string value = equals == std::string::npos ? "" : word.substr(equals + 1);
    if (word == "grounded") {
        line.grounded = true;
    } else if (key == "at") {
        readPlace(line, value);
    } else if (key == "attribute") {
        line.attributes.push_back(readAttribute(value, line.number));
    } else if (equals != std::string::npos &&
               std::count(kComponentKeys.begin(), kComponentKeys.end(), key) > 0) {
        if (!line.keys.emplace(key, value).second) {
            refuseLine(line.number, key + "= appears twice");
        }
    } else {
        refuseLine(line.number, "\"" + word + "\" is none of the keys");
    }
}

OutlineLine readLine(const std::string& text, std::size_t number) {
    OutlineLine line;
    line.number = number;
    line.indent = text.find_first_not_of(' ');
    if (text.find('\t') != std::string::npos) {
        refuseLine(number, "tabs are not understood, only spaces");
    }
    const std::size_t end = std::min(text.find("  ", line.indent), text.size());
    line.label = text.substr(line.indent, end - line.indent);
    line.absent = line.label == "(absent)";
    if (line.label.find('=') != std::string::npos) {
        refuseLine(number, "two spaces are needed between the name and what describes it");
    }
    const std::vector<std::string> words = splitWords(text.substr(end), number);
    if (line.absent && !words.empty()) {
        refuseLine(number, "what is absent has no properties");
    }
    for (const std::string& word : words) {
        readWord(line, word);
    }
    return line;
}

}  // namespace

std::vector<OutlineLine> readOutlineLines(const std::string& text) {
    std::vector<OutlineLine> lines;
    std::istringstream stream(text);
    std::string line;
    for (std::size_t number = 1; std::getline(stream, line); ++number) {
        line.erase(line.find_last_not_of(" \r") + 1);
        if (!line.empty()) {
            lines.push_back(readLine(line, number));
        }
    }
    return lines;
}

std::vector<double> readNumbers(const std::string& text, char separator, std::size_t count,
                                std::size_t line) {
    std::vector<double> numbers;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (true) {
        double number = 0;
        const auto [rest, error] = std::from_chars(at, end, number);
        if (error != std::errc() || !std::isfinite(number)) {
            break;
        }
        numbers.push_back(number);
        at = rest;
        if (at == end || *at != separator) {
            break;
        }
        ++at;
    }
    if (at != end || numbers.size() != count) {
        refuseLine(line, "\"" + text + "\" should be " + std::to_string(count) +
                             " numbers with \"" + separator + "\" between them");
    }
    return numbers;
}

void refuseLine(std::size_t line, const std::string& reason) {
    throw std::invalid_argument("line " + std::to_string(line) + ": " + reason);
}

}  // namespace host
