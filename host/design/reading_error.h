#pragma once

#include <optional>
#include <stdexcept>
#include <string>

namespace host {

/// One of `ReadingLimits` that the caller can increase.
enum class ReadingLimit { Seconds, Megabytes, Occurrences };

/// A file that cannot be read as a design; the text says why, and what would be right.
class ReadingError : public std::runtime_error {
public:
    explicit ReadingError(const std::string& text, std::optional<ReadingLimit> limit = {})
        : std::runtime_error(text), limit_(limit) {}

    /// The limit that the file exceeds; nothing for other errors.
    [[nodiscard]] std::optional<ReadingLimit> limit() const { return limit_; }

private:
    std::optional<ReadingLimit> limit_;
};

}  // namespace host
