#pragma once

#include <optional>
#include <string>

namespace host {

/// What the user should know about a design that could be read.
struct ReadingWarning {
    /// One stable word for programs, such as "missing-file"; the list is in step_import.h.
    std::string code;
    std::string file;       ///< the path as it was given
    std::string text;       ///< one line that follows the path
    std::string component;  ///< the one it is about, by its name in the file; empty for others
    std::optional<double> value;  ///< a number that is in doubt, as the file has it
    std::string unit;             ///< and its unit, in the file's words

    /// The line for the user: "FILE: TEXT".
    [[nodiscard]] std::string line() const { return file + ": " + text; }

    bool operator==(const ReadingWarning&) const = default;
};

}  // namespace host
