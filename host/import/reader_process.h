#pragma once

#include "host/design/reading_limits.h"
#include "host/import/child_program.h"
#include "host/import/reader_connection.h"

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace host {

/// A program that is asked and answers in lines, and is not trusted: it is ended when it takes
/// longer or grows larger than it may. After a failure every further request fails as well.
class ReaderProcess final : public ReaderConnection {
public:
    /// Starts the program with its arguments; throws `ReaderFailure` when that is not possible.
    ///
    /// Of the limits it watches the time, from `startClock` to the last line wanted, and the
    /// resident memory.
    ReaderProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                  const ReadingLimits& limits);

    void startClock() override;
    void send(const std::string& line) override;
    std::string receive() override;

private:
    bool takeLine(std::string& line);
    void checkLimits();
    [[noreturn]] void failWith(const std::string& reason);

    ReadingLimits limits_;
    ChildProgram program_;
    std::string unread_;
    std::size_t searched_ = 0;  ///< how much of `unread_` is known to hold no end of line
    std::string failure_;
    std::chrono::steady_clock::time_point deadline_;
};

}  // namespace host
