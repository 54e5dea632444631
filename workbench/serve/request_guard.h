#pragma once

#include <string>
#include <string_view>

/// Who may talk to the server: the browser of the user who started it, on its own page alone.
namespace workbench::serve {

/// 256 random bits, in hexadecimal digits.
std::string randomToken();

/// What a request says of where it comes from; an empty string for a header that is not there.
struct RequestOrigin {
    std::string method;
    std::string host;
    std::string origin;
    std::string cookie;  ///< the whole header
    bool hasOneHost = true;
};

class RequestGuard {
public:
    RequestGuard(std::string token, int port);

    /// Why a request is refused although the cookie is not asked for; empty where it is not.
    /// Another page's request carries that page's origin, and another name's the name, even where
    /// it leads to this machine.
    [[nodiscard]] std::string whyForeign(const RequestOrigin& request) const;

    /// Whether a request carries the cookie.
    [[nodiscard]] bool hasCookie(const std::string& cookie) const;

    [[nodiscard]] bool isToken(std::string_view given) const;

    /// The header "Set-Cookie" for a browser that came with the token.
    [[nodiscard]] std::string setCookie() const;

private:
    [[nodiscard]] bool isOwn(const std::string& host) const;

    std::string token_;
    std::string name_;  ///< of the cookie: with the port, for browsers do not tell ports apart
    std::string port_;
};

}  // namespace workbench::serve
