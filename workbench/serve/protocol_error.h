#pragma once

#include <stdexcept>
#include <string>

namespace workbench::serve {

/// Why a request is refused: its text is for the user, its status for the page.
class ProtocolError : public std::runtime_error {
public:
    /// `member` is one that the answer has beside its text, see `member()`.
    ProtocolError(int status, const std::string& text, const char* member = "")
        : std::runtime_error(text), status_(status), member_(member) {}

    [[nodiscard]] int status() const { return status_; }

    /// Why the same action may be done later: "exists" where the user has to agree that a file is
    /// replaced, "changed" that changes are lost, "waiting" where something else is waited for;
    /// empty for what is refused in any case.
    [[nodiscard]] const std::string& member() const { return member_; }

private:
    int status_;
    std::string member_;
};

inline constexpr int kBadRequest = 400;
inline constexpr int kForbidden = 403;
inline constexpr int kNotFound = 404;
inline constexpr int kConflict = 409;
inline constexpr int kTooManyRequests = 429;
inline constexpr int kFailed = 500;
inline constexpr int kUnavailable = 503;

}  // namespace workbench::serve
