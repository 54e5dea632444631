#pragma once

#include <stdexcept>
#include <string>

namespace workbench {

/// The exit status of the program. Anything but `Success` comes with a line on stderr, and with
/// no output file written or changed, except by commands that open several files.
enum class ExitCode : int {
    Success = 0,
    BadInput = 1,     ///< a given file cannot be read, opened, measured or applied; an add-in did
                      ///< wrong where that is asked for
    BadUsage = 2,     ///< the command line makes no sense
    NoAddin = 3,      ///< the add-in is missing, cannot be started, or is in use by another process
    AddinFailed = 4,  ///< the add-in threw an unexpected exception, or did not do its work
    OutputFailed = 5,  ///< a result cannot be written
    Different = 6,     ///< two designs differ; this one comes without a line
};

/// What an exit status means, in the words of `--help` and of the man page.
struct ExitMeaning {
    ExitCode code;
    const char* meaning;
};

inline constexpr ExitMeaning kExitMeanings[] = {
    {ExitCode::Success, "success"},
    {ExitCode::BadInput,
     "the file cannot be read or measured as a design, or --strict or --expect-no-error found a "
     "fault"},
    {ExitCode::BadUsage, "wrong usage"},
    {ExitCode::NoAddin, "the add-in is missing or in use"},
    {ExitCode::AddinFailed, "the add-in failed"},
    {ExitCode::OutputFailed, "a result cannot be written"},
    {ExitCode::Different, "compare --exit-code found differences"},
};

/// Ends the program: its text is the line on stderr.
class Failure : public std::runtime_error {
public:
    Failure(ExitCode code, const std::string& line) : std::runtime_error(line), code_(code) {}

    [[nodiscard]] ExitCode code() const { return code_; }

private:
    ExitCode code_;
};

/// Throws a `Failure` for wrong usage.
[[noreturn]] inline void refuse(const std::string& line) {
    throw Failure(ExitCode::BadUsage, line);
}

}  // namespace workbench
