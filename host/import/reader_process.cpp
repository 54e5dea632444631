#include "host/import/reader_process.h"

#include <array>
#include <charconv>

namespace host {
namespace {

constexpr std::chrono::milliseconds kWatch(20);
constexpr std::size_t kLongestLine = std::size_t{256} * 1024 * 1024;

/// With a point in every locale.
std::string shortNumber(double value) {
    constexpr std::size_t kLongest = 330;  // digits and zeros of the smallest number
    std::array<char, kLongest> digits = {};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                      std::chars_format::fixed);
    return {digits.data(), result.ptr};
}

std::string textOfEnd(const std::string& crash) {
    return crash.empty() ? "the reader ended without an answer"
                         : "the reader crashed (" + crash + ")";
}

}  // namespace

ReaderProcess::ReaderProcess(const std::filesystem::path& program,
                             const std::vector<std::string>& arguments, const ReadingLimits& limits)
    : limits_(limits), program_(program, arguments, limits.megabytes) {
    startClock();
}

void ReaderProcess::startClock() {
    deadline_ = std::chrono::steady_clock::now() +
                std::chrono::duration_cast<std::chrono::steady_clock::duration>(
                    std::chrono::duration<double>(limits_.seconds));
}

void ReaderProcess::send(const std::string& line) { program_.send(line + '\n'); }

std::string ReaderProcess::receive() {
    std::string line;
    while (!takeLine(line)) {
        if (!failure_.empty()) {
            throw ReaderFailure(failure_);
        }
        checkLimits();
        if (!program_.receive(unread_, kWatch)) {
            failWith(textOfEnd(program_.end()));
        }
    }
    return line;
}

bool ReaderProcess::takeLine(std::string& line) {
    const std::size_t end = unread_.find('\n', searched_);
    if (end == std::string::npos) {
        searched_ = unread_.size();
        return false;
    }
    line = unread_.substr(0, end);
    unread_.erase(0, end + 1);
    searched_ = 0;
    return true;
}

void ReaderProcess::checkLimits() {
    if (std::chrono::steady_clock::now() > deadline_) {
        failWith("the reader took longer than " + shortNumber(limits_.seconds) + " seconds");
    }
    if (unread_.size() > kLongestLine) {
        failWith("the reader's answer has no end");
    }
    if (program_.megabytes() > limits_.megabytes) {
        failWith("the reader needed more than " + std::to_string(limits_.megabytes) +
                 " megabytes of memory");
    }
}

void ReaderProcess::failWith(const std::string& reason) {
    program_.end();
    failure_ = reason;
    throw ReaderFailure(reason);
}

}  // namespace host
