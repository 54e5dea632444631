#pragma once

#include <stdexcept>
#include <string>

namespace workbench::serve {

/// Why a request is refused: its text is for the user, its status for the page.
class ProtocolError : public std::runtime_error {
public:
    ProtocolError(int status, const std::string& text, bool exists = false)
        : std::runtime_error(text), status_(status), exists_(exists) {}

    [[nodiscard]] int status() const { return status_; }

    /// A file would be replaced.
    [[nodiscard]] bool exists() const { return exists_; }

private:
    int status_;
    bool exists_;
};

inline constexpr int kBadRequest = 400;
inline constexpr int kForbidden = 403;
inline constexpr int kNotFound = 404;
inline constexpr int kConflict = 409;
inline constexpr int kTooManyRequests = 429;
inline constexpr int kUnavailable = 503;

}  // namespace workbench::serve
