#include "workbench/dialogs/edited_list.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_ids.h"
#include "workbench/output/display_text.h"

#include "host/base/utf8_path.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
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

    /// All fields up to the end of the line; `number` is moved on by the lines that they take.
    std::vector<std::string> takeLine(std::size_t& number) {
        std::vector<std::string> fields;
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

    std::string takeField(std::size_t& number) {
        if (const std::size_t end = closingQuote(); end > 0) {
            std::string field;
            for (std::size_t at = 1; at < end; ++at) {
                field += rest_[at];
                at += rest_[at] == '"' ? 1U : 0U;
            }
            number += static_cast<std::size_t>(std::ranges::count(field, '\n'));
            rest_.remove_prefix(end + 1);
            return field;
        }
        std::size_t end = 0;
        while (!endsField(end)) {
            ++end;
        }
        std::string field(rest_.substr(0, end));
        rest_.remove_prefix(end);
        return field;
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

bool isEmpty(const std::vector<std::string>& fields) {
    return std::ranges::all_of(fields, &std::string::empty);
}

bool isTotal(const std::vector<std::string>& fields) {
    return fields.size() > 1 && fields[0].empty() && fields[1].starts_with(kMassLineBegin);
}

/// A string that is not UTF-8 shows as one with replacement characters that it does not have.
bool isUtf8(std::string_view text) {
    constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
    return text.find(kReplacement) != std::string_view::npos ||
           !std::ranges::any_of(text, [](char each) { return (each & 0x80) != 0; }) ||
           printable(text).find(kReplacement) == std::string::npos;
}

}  // namespace

EditedList parseEditedList(std::string_view text, const std::string& file) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    text.remove_prefix(text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0);
    if (!isUtf8(text)) {
        refuseFile(file, "is not UTF-8; save the list as \"CSV UTF-8\"");
    }
    EditedList list{.file = file, .captions = {}, .lines = {}};
    Fields fields(text, separatorOf(text));
    for (std::size_t number = 1; !fields.done();) {
        const std::size_t first = number;
        std::vector<std::string> line = fields.takeLine(number);
        if (first == 1) {
            list.captions = std::move(line);
        } else if (!isEmpty(line) && !isTotal(line)) {
            list.lines.push_back({.number = first, .fields = std::move(line)});
        }
    }
    if (isEmpty(list.captions)) {
        refuseFile(file, "has no captions in its first line");
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
