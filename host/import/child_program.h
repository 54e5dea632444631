#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// A program that runs beside this one and is not trusted.
///
/// Its standard input and output lead here, it has no error output, and none of this process' other
/// files. It is ended, and waited for, with this object; on Windows, and where it watches its
/// input, it ends with this process as well, however that ends.
class ChildProgram {
public:
    /// Throws `ReaderFailure` when the program cannot be started. Its memory may be bounded, to
    /// more than `megabytes`, so that it fails before the machine does.
    ChildProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                 std::size_t megabytes);
    ChildProgram(const ChildProgram&) = delete;
    ChildProgram& operator=(const ChildProgram&) = delete;
    ~ChildProgram();

    /// Waits until the program has taken the bytes; they are lost where it has ended.
    void send(std::string_view bytes);

    /// Appends what the program has written, for which it waits for a while. False once there will
    /// be no more.
    bool receive(std::string& bytes, std::chrono::milliseconds atMost);

    /// The memory that the program holds now, in megabytes; 0 where it is unknown.
    [[nodiscard]] std::size_t megabytes() const;

    /// Ends the program, if it has not ended, and waits until it has. Returns why it crashed, empty
    /// where it did not; the first call's answer is that of all.
    std::string end();

private:
    struct System;
    std::unique_ptr<System> system_;
};

}  // namespace host
