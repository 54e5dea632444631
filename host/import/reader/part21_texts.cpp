#include "host/import/reader/part21_texts.h"

#include "host/import/reader/part21_string.h"
#include "host/import/reader/text_encoding.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <system_error>
#include <utility>

namespace step {
namespace {

constexpr std::string_view kStyle = "CONTEXT_DEPENDENT_OVER_RIDING_STYLED_ITEM";
constexpr std::array<std::string_view, 3> kWanted = {"PRODUCT", "DESCRIPTIVE_REPRESENTATION_ITEM",
                                                     kStyle};

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

bool isKeyword(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

class Scanner {
public:
    explicit Scanner(std::string_view file) : rest_(file) {}

    /// Moves to the next instance that is wanted; false at the end of the file.
    bool next() {
        while (!rest_.empty()) {
            if (rest_.front() == '#' && readHead()) {
                return true;
            }
            step();
        }
        return false;
    }

    [[nodiscard]] int label() const { return label_; }
    [[nodiscard]] bool isStyle() const { return isStyle_; }

    /// The strings among the parameters, as spelt between their quotes.
    std::vector<std::string> parameters() {
        std::vector<std::string> found(1);
        for (int depth = 0; !rest_.empty();) {
            const char c = rest_.front();
            if (c == '\'') {
                std::string literal = readLiteral();
                if (depth == 1) {
                    found.back() = std::move(literal);
                }
                continue;
            }
            depth += c == '(' ? 1 : c == ')' ? -1 : 0;
            if (c == ',' && depth == 1) {
                found.emplace_back();
            }
            step();
            if (depth == 0) {
                break;
            }
        }
        return found;
    }

    /// The labels in the last list among the parameters.
    std::vector<int> lastReferences() {
        std::vector<int> labels;
        for (int depth = 0; !rest_.empty();) {
            const char c = rest_.front();
            depth += c == '(' ? 1 : c == ')' ? -1 : 0;
            if (c == '(' && depth == 2) {
                labels.clear();
            }
            if (c == '#') {
                int label = 0;
                std::from_chars(rest_.data() + 1, rest_.data() + rest_.size(), label);
                labels.push_back(label);
            }
            step();
            if (depth == 0) {
                break;
            }
        }
        return labels;
    }

private:
    void drop(std::size_t count) { rest_.remove_prefix(std::min(count, rest_.size())); }

    void skipBlanks() {
        while (!rest_.empty() && isBlank(rest_.front())) {
            drop(1);
        }
    }

    /// Past one character, a whole comment, or a whole literal.
    void step() {
        if (rest_.starts_with("/*")) {
            const std::size_t end = rest_.find("*/", 2);
            drop(end == std::string_view::npos ? rest_.size() : end + 2);
        } else if (rest_.front() == '\'') {
            readLiteral();
        } else {
            drop(1);
        }
    }

    /// At a quote; a literal may run over the ends of lines, which do not count.
    std::string readLiteral() {
        std::string literal;
        drop(1);
        while (!rest_.empty()) {
            if (rest_.starts_with("''")) {
                literal += "''";
                drop(2);
                continue;
            }
            const char c = rest_.front();
            drop(1);
            if (c == '\'') {
                break;
            }
            if (c != '\r' && c != '\n') {
                literal += c;
            }
        }
        return literal;
    }

    /// At "#": true when "#label = KEYWORD (" with a wanted keyword follows.
    bool readHead() {
        drop(1);
        const char* const end = rest_.data() + rest_.size();
        const auto [stop, error] = std::from_chars(rest_.data(), end, label_);
        drop(static_cast<std::size_t>(stop - rest_.data()));
        skipBlanks();
        if (error != std::errc() || !rest_.starts_with('=')) {
            return false;
        }
        drop(1);
        skipBlanks();
        std::size_t length = 0;
        while (length < rest_.size() && isKeyword(rest_[length])) {
            ++length;
        }
        const std::string_view keyword = rest_.substr(0, length);
        isStyle_ = keyword == kStyle;
        drop(length);
        skipBlanks();
        return rest_.starts_with('(') &&
               std::find(kWanted.begin(), kWanted.end(), keyword) != kWanted.end();
    }

    std::string_view rest_;
    int label_ = 0;
    bool isStyle_ = false;
};

}  // namespace

Part21Texts::Part21Texts(std::string_view file) {
    StringReader strings;
    Scanner scanner(file);
    while (scanner.next()) {
        if (scanner.isStyle()) {
            contexts_[scanner.label()] = scanner.lastReferences();
            continue;
        }
        std::vector<std::string>& parameters = instances_[scanner.label()];
        parameters = scanner.parameters();
        for (const std::string& literal : parameters) {
            strings.consider(literal);
        }
    }
    strings.decideEncodings();
    for (auto& [label, parameters] : instances_) {
        for (std::string& text : parameters) {
            text = cleaned(strings.read(text));
        }
    }
}

std::optional<std::string> Part21Texts::text(int label, std::size_t parameter) const {
    const auto found = instances_.find(label);
    if (found == instances_.end()) {
        return std::nullopt;
    }
    return parameter < found->second.size() ? found->second[parameter] : std::string();
}

std::vector<int> Part21Texts::contextsOf(int label) const {
    const auto found = contexts_.find(label);
    return found == contexts_.end() ? std::vector<int>() : found->second;
}

}  // namespace step
