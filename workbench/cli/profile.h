#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

/// A profile: options of a command, kept in a file of TOML.
///
///     view = "indented"
///     columns = ["Item", "Part Number=Number", "Mass[g]:2"]
///     decimal-comma = true
///
///     [[output]]
///     file = "parts.csv"
///
/// A key is the name of an option without its dashes. Its value is what the option takes: a string
/// or a number, true or false for a flag, an array where the option may be repeated or takes a list
/// with commas. A table of "output" has a file, and what holds for that file alone.
/// Every mistake is a `Failure` that names the file and the line.
namespace workbench {

struct ProfileEntry {
    enum class Kind { String, Number, Flag, Array };

    std::string key;
    Kind kind = Kind::String;
    std::vector<std::string>
        values;  ///< one, but of an array any number; of a flag "true", "false"
    unsigned line = 0;
};

struct ProfileOutput {
    std::string file;
    std::vector<ProfileEntry> entries;  ///< all others
    unsigned line = 0;
};

struct Profile {
    std::string file;  ///< as messages call it
    std::vector<ProfileEntry> entries;
    std::vector<ProfileOutput> outputs;
};

Profile readProfile(const std::string& file);

/// The same from its text.
Profile parseProfile(const std::string& text, const std::string& file);

/// The name of a profile that is found without being named.
inline constexpr const char* kProfileName = "tarnix.toml";

/// Which options of a command a profile may hold: all but the ones named here.
struct ProfileKeys {
    std::vector<std::string> excluded;  ///< without dashes
    std::vector<std::string> lists;     ///< options whose one value is a list with commas
};

/// Gives the options of a command the values that a profile has for them. Options that were given
/// already keep theirs. A key that is no option is refused, with the nearest one.
void applyProfile(CLI::App& command, const std::vector<ProfileEntry>& entries,
                  const ProfileKeys& keys, const std::string& file);

/// The options of a command as they are now, as a profile that gives the same ones.
std::string profileText(const CLI::App& command, const ProfileKeys& keys);

/// A table of "output" as a profile has it, without the line above it.
std::string outputText(const ProfileOutput& output);

/// An entry of a list with commas as it has to be written in it.
std::string escapedEntry(const std::string& entry);

}  // namespace workbench
