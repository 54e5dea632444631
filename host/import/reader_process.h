#pragma once

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
    struct Bounds {
        double seconds = 0;         ///< from `startClock` to the last line wanted
        std::size_t megabytes = 0;  ///< resident memory
    };

    /// Starts the program with its arguments; throws `ReaderFailure` when that is not possible.
    ReaderProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                  const Bounds& bounds);
    ReaderProcess(const ReaderProcess&) = delete;
    ReaderProcess& operator=(const ReaderProcess&) = delete;
    ~ReaderProcess();

    /// From now on the bounded time runs again.
    void startClock();

    /// Sends a line; a failure shows with the next `receive`.
    void send(const std::string& line);

    /// Waits for the next line; throws `ReaderFailure`.
    std::string receive();

    [[nodiscard]] pid_t id() const { return process_; }

private:
    bool takeLine(std::string& line);
    void readMore();
    void checkBounds();
    [[noreturn]] void give(const std::string& reason);
    std::string end();

    Bounds bounds_;
    pid_t process_ = -1;
    int socket_ = -1;
    std::string unread_;
    std::size_t searched_ = 0;  ///< how much of `unread_` is known to hold no end of line
    std::string failure_;
    std::chrono::steady_clock::time_point deadline_;
};

}  // namespace host
