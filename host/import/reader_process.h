#pragma once

#include "host/design/reading_limits.h"

#include <sys/types.h>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace host {

/// What became of a reader that did not answer; a clause such as "the reader crashed (...)".
class ReaderFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A program that is asked and answers in lines, and is not trusted: it is ended when it takes
/// longer or grows larger than it may. After a failure every further request fails as well.
///
/// The program has one end of a socket as its standard input and output, no error output, and none
/// of this process' other files. It is ended, and waited for, with this object.
class ReaderProcess {
public:
    /// Starts the program with its arguments; throws `ReaderFailure` when that is not possible.
    ///
    /// Of the limits it watches the time, from `startClock` to the last line wanted, and the
    /// resident memory.
    ReaderProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                  const ReadingLimits& limits);
    ReaderProcess(const ReaderProcess&) = delete;
    ReaderProcess& operator=(const ReaderProcess&) = delete;
    ~ReaderProcess();

    /// Starts the time that is limited again.
    void startClock();

    /// Sends a line; a failure shows with the next `receive`.
    void send(const std::string& line);

    /// Waits for the next line; throws `ReaderFailure`.
    std::string receive();

    [[nodiscard]] pid_t id() const { return process_; }

private:
    bool takeLine(std::string& line);
    void readMore();
    void checkLimits();
    [[noreturn]] void failWith(const std::string& reason);
    std::string end();

    ReadingLimits limits_;
    pid_t process_ = -1;
    int socket_ = -1;
    std::string unread_;
    std::size_t searched_ = 0;  ///< how much of `unread_` is known to hold no end of line
    std::string failure_;
    std::chrono::steady_clock::time_point deadline_;
};

}  // namespace host
