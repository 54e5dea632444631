#pragma once

#include <cstddef>
#include <filesystem>
#include <ios>
#include <optional>
#include <streambuf>
#include <string>

namespace workbench {

/// Where the results of a run go: everything that is printed on `std::cout` while it lives.
///
/// They go to stdout when the stream is flushed, to a terminal without what could control it; or
/// into a file, written whole or not at all. Where the run does not reach
/// `finish` the file keeps its old content, and the results are printed.
class ResultStream final : private std::streambuf {
public:
    ResultStream();
    ResultStream(const ResultStream&) = delete;
    ResultStream& operator=(const ResultStream&) = delete;
    ~ResultStream() override;

    /// Sends the results into this file, "-" for stdout. A missing folder is created.
    /// Throws a `Failure` for what is no file, such as a folder or a device.
    void writeTo(const std::string& file);

    /// Passes on what was printed. Throws a `Failure` where not all of it could be.
    void finish();

private:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* text, std::streamsize count) override;
    int sync() override;
    bool pass();
    bool writeFile(const std::string& content);
    void restoreFile();

    std::streambuf* stdout_;
    std::filesystem::path file_;  ///< absolute; empty for stdout
    std::string results_;         ///< for stdout: since it was flushed
    std::size_t written_ = 0;
    std::optional<std::string> old_;  ///< content of the file before; nothing where there was none
    bool isFinished_ = false;
};

/// The terminal columns that results have: those of the terminal that they are printed on,
/// unlimited where they go elsewhere.
std::size_t resultWidth();

/// Why results could not be passed on.
std::string whyOutputFailed();

}  // namespace workbench
