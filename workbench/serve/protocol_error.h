#pragma once

#include <stdexcept>
#include <string>

namespace workbench::serve {

/// Why a request is refused: its text is for the user, its status for the page.
class ProtocolError : public std::runtime_error {
public:
    /// `question` is the member of the answer that says what the user is to be asked.
    ProtocolError(int status, const std::string& text, const char* question = "")
        : std::runtime_error(text), status_(status), question_(question) {}

    [[nodiscard]] int status() const { return status_; }

    /// What the user may agree to, and send the action again: "exists" where a file would be
    /// replaced, "changed" where changes would be lost; empty for what is refused in any case.
    [[nodiscard]] const std::string& question() const { return question_; }

private:
    int status_;
    std::string question_;
};

inline constexpr int kBadRequest = 400;
inline constexpr int kForbidden = 403;
inline constexpr int kNotFound = 404;
inline constexpr int kConflict = 409;
inline constexpr int kTooManyRequests = 429;
inline constexpr int kFailed = 500;
inline constexpr int kUnavailable = 503;

}  // namespace workbench::serve
