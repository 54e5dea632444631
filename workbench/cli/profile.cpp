#include "workbench/cli/profile.h"

#include "workbench/cli/exit_code.h"
#include "workbench/cli/nearest_word.h"

#include "host/base/utf8_path.h"

#include <CLI/CLI.hpp>

#define TOML_HEADER_ONLY 1
#include <toml++/toml.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string_view>

namespace workbench {
namespace {

constexpr const char* kOutput = "output";
constexpr const char* kFileKey = "file";

[[noreturn]] void fail(const std::string& file, unsigned line, const std::string& text) {
    throw Failure(ExitCode::BadInput, file + ":" + std::to_string(line) + ": " + text);
}

/// The entries of one table.
class TableReader {
public:
    explicit TableReader(const std::string& file) : file_(file) {}

    std::vector<ProfileEntry> entries(const toml::table& table) const {
        std::vector<ProfileEntry> entries;
        for (const auto& [key, value] : table) {
            if (!(value.is_array_of_tables() && key.str() == kOutput)) {
                entries.push_back(entryOf(std::string(key.str()), value));
            }
        }
        // A table sorts its keys; mistakes are reported in the order of the file.
        std::ranges::stable_sort(entries, {}, &ProfileEntry::line);
        return entries;
    }

    ProfileOutput output(const toml::table& table) const {
        ProfileOutput output{
            .file = {}, .entries = entries(table), .line = table.source().begin.line};
        const auto file = std::ranges::find(output.entries, kFileKey, &ProfileEntry::key);
        if (file == output.entries.end()) {
            fail(file_, output.line, "an [[output]] needs a key \"file\"");
        }
        if (file->kind != ProfileEntry::Kind::String || file->values.front().empty()) {
            fail(file_, file->line, "file: expected the name of a file");
        }
        output.file = file->values.front();
        output.entries.erase(file);
        return output;
    }

private:
    ProfileEntry entryOf(const std::string& key, const toml::node& value) const {
        ProfileEntry entry{.key = key, .kind = {}, .values = {}, .line = value.source().begin.line};
        if (const toml::array* const array = value.as_array()) {
            entry.kind = ProfileEntry::Kind::Array;
            for (const toml::node& each : *array) {
                entry.values.push_back(scalar(key, each, entry.kind));
            }
            entry.kind = ProfileEntry::Kind::Array;
        } else {
            entry.values.push_back(scalar(key, value, entry.kind));
        }
        return entry;
    }

    std::string scalar(const std::string& key, const toml::node& value,
                       ProfileEntry::Kind& kind) const {
        if (const auto* const text = value.as_string()) {
            kind = ProfileEntry::Kind::String;
            return text->get();
        }
        if (const auto* const flag = value.as_boolean()) {
            kind = ProfileEntry::Kind::Flag;
            return flag->get() ? "true" : "false";
        }
        if (!value.is_number()) {
            const bool isOutput = key == kOutput;
            fail(file_, value.source().begin.line,
                 key + (isOutput ? ": expected tables, each below a line [[output]]"
                                 : ": expected a string, a number, true, false or an array"));
        }
        kind = ProfileEntry::Kind::Number;
        std::ostringstream digits;
        digits << toml::node_view<const toml::node>(value);
        return digits.str();
    }

    const std::string& file_;
};

std::string keyOf(const CLI::Option& option) {
    return option.get_lnames().empty() ? "" : option.get_lnames().front();
}

bool contains(const std::vector<std::string>& all, const std::string& one) {
    return std::ranges::find(all, one) != all.end();
}

/// The options that a profile may hold.
std::vector<const CLI::Option*> optionsIn(const CLI::App& command, const ProfileKeys& keys) {
    std::vector<const CLI::Option*> options;
    for (const CLI::Option* const option : command.get_options()) {
        const std::string key = keyOf(*option);
        if (!key.empty() && key != "help" && !contains(keys.excluded, key)) {
            options.push_back(option);
        }
    }
    return options;
}

bool isFlag(const CLI::Option& option) { return option.get_expected_max() == 0; }

/// Whether an option may be repeated.
bool takesSeveral(const CLI::Option& option) { return option.get_items_expected_max() > 1; }

[[noreturn]] void refuseKey(const CLI::App& command, const ProfileKeys& keys,
                            const std::string& file, const ProfileEntry& entry) {
    std::vector<std::string> known;
    for (const CLI::Option* const option : optionsIn(command, keys)) {
        known.push_back(keyOf(*option));
    }
    const std::string nearest = nearestWord(entry.key, known);
    fail(file, entry.line,
         "no key \"" + entry.key + "\"" +
             (nearest.empty()
                  ? "; the keys are the options of " + command.get_name() + ", without their dashes"
                  : "; did you mean \"" + nearest + "\"?"));
}

/// What kind of value an option expects; an empty string where the entry has that kind.
std::string expectedInstead(const CLI::Option& option, const ProfileKeys& keys,
                            const ProfileEntry& entry) {
    using Kind = ProfileEntry::Kind;
    if (isFlag(option)) {
        return entry.kind == Kind::Flag ? "" : "true or false";
    }
    if (entry.kind == Kind::Array && !takesSeveral(option) && !contains(keys.lists, entry.key)) {
        return "one value, not an array";
    }
    return entry.kind == Kind::Flag ? "a string or a number" : "";
}

std::string inOneWord(const std::vector<std::string>& entries) {
    std::string text;
    for (const std::string& each : entries) {
        text += (text.empty() ? "" : ",") + escapedEntry(each);
    }
    return text;
}

/// Also gives a flag that is false, so that it keeps out one that is true.
void give(CLI::Option& option, const ProfileEntry& entry) {
    if (entry.kind == ProfileEntry::Kind::Array && !takesSeveral(option)) {
        option.add_result(inOneWord(entry.values));
    } else {
        option.add_result(entry.values);
    }
    option.run_callback();
}

bool isPlainNumber(const std::string& text) {
    constexpr std::size_t kSafeDigits = 15;
    return !text.empty() && text.size() <= kSafeDigits && (text == "0" || text.front() != '0') &&
           text.find_first_not_of("0123456789") == std::string::npos;
}

std::string quoted(const std::string& text) {
    std::ostringstream stream;
    stream << toml::value<std::string>(text);
    return stream.str();
}

std::string valueText(const std::string& value) {
    return isPlainNumber(value) ? value : quoted(value);
}

/// The value of an option as a profile has it; an empty string where it has none.
std::string valueText(const CLI::Option& option) {
    if (isFlag(option)) {
        return option.count() > 0 && option.as<bool>() ? "true" : "false";
    }
    if (option.count() == 0) {
        return option.get_default_str().empty() ? "" : valueText(option.get_default_str());
    }
    const std::vector<std::string>& values = option.results();
    if (!takesSeveral(option)) {
        return valueText(values.back());
    }
    std::string text;
    for (const std::string& value : values) {
        text += (text.empty() ? "[" : ", ") + quoted(value);
    }
    return text + "]";
}

}  // namespace

Profile readProfile(const std::string& file) {
    std::ifstream stream(host::fromUtf8(file), std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    if (!stream.is_open() || stream.bad()) {
        throw Failure(ExitCode::BadInput, file + ": no such profile, or it cannot be read");
    }
    return parseProfile(text, file);
}

Profile parseProfile(const std::string& text, const std::string& file) {
    try {
        const toml::table table = toml::parse(std::string_view(text), std::string_view(file));
        const TableReader reader(file);
        Profile profile{.file = file, .entries = reader.entries(table), .outputs = {}};
        if (const toml::array* const outputs = table[kOutput].as_array();
            outputs != nullptr && outputs->is_homogeneous<toml::table>()) {
            for (const toml::node& each : *outputs) {
                profile.outputs.push_back(reader.output(*each.as_table()));
            }
        }
        return profile;
    } catch (const toml::parse_error& error) {
        fail(file, error.source().begin.line, std::string(error.description()));
    }
}

void applyProfile(CLI::App& command, const std::vector<ProfileEntry>& entries,
                  const ProfileKeys& keys, const std::string& file) {
    for (const ProfileEntry& entry : entries) {
        CLI::Option* const option = command.get_option_no_throw("--" + entry.key);
        if (option == nullptr || contains(keys.excluded, entry.key) || entry.key == "help") {
            refuseKey(command, keys, file, entry);
        }
        if (const std::string expected = expectedInstead(*option, keys, entry); !expected.empty()) {
            fail(file, entry.line, entry.key + ": expected " + expected);
        }
        if (option->count() > 0) {
            continue;
        }
        try {
            give(*option, entry);
        } catch (const CLI::ParseError& error) {
            // A key has no dashes.
            const std::string why = error.what();
            fail(file, entry.line, why.starts_with("--") ? why.substr(2) : why);
        } catch (const Failure& failure) {
            fail(file, entry.line, failure.what());
        }
    }
}

std::string profileText(const CLI::App& command, const ProfileKeys& keys) {
    std::string text;
    for (const CLI::Option* const option : optionsIn(command, keys)) {
        if (const std::string value = valueText(*option); !value.empty()) {
            text += keyOf(*option) + " = " + value + "\n";
        }
    }
    return text;
}

std::string outputText(const ProfileOutput& output) {
    using Kind = ProfileEntry::Kind;
    std::string text = "file = " + quoted(output.file) + "\n";
    for (const ProfileEntry& entry : output.entries) {
        std::string value =
            entry.kind == Kind::String || entry.kind == Kind::Array ? "" : entry.values.front();
        for (const std::string& each : entry.values) {
            value += entry.kind == Kind::String  ? quoted(each)
                     : entry.kind == Kind::Array ? (value.empty() ? "" : ", ") + quoted(each)
                                                 : "";
        }
        text += entry.key + " = " + (entry.kind == Kind::Array ? "[" + value + "]" : value) + "\n";
    }
    return text;
}

std::string escapedEntry(const std::string& entry) {
    std::string text;
    for (const char each : entry) {
        // A backslash in an entry has the same meaning in a list, so it stays.
        text += each == ',' ? "\\," : std::string(1, each);
    }
    return text;
}

}  // namespace workbench
