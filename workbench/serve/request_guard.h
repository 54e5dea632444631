#pragma once

#include <string>
#include <string_view>

/// Who may talk to the server: the browser of the user who started it, on its own page alone.
namespace workbench::serve {

/// 256 random bits, in hexadecimal digits.
std::string randomToken();

/// What the server knows its page by. A browser sends a cookie to every port of the machine, also
/// to those of other users; so there is a key as well, which only the page itself can read.
struct Secrets {
    std::string token = randomToken();  ///< in the address that is printed
    std::string cookie = randomToken();
    std::string key = randomToken();
};

/// What a request says of where it comes from; an empty string for a header that is not there.
struct RequestOrigin {
    std::string method;
    std::string host;
    std::string origin;
    std::string site;    ///< Sec-Fetch-Site
    std::string cookie;  ///< the whole header
    bool hasOneHost = true;
};

class RequestGuard {
public:
    RequestGuard(Secrets secrets, int port);

    /// Why a request is refused whatever it knows; empty where it is not. Another page's request
    /// carries that page's origin, or that it is foreign, and another name's the name, even where
    /// it leads to this machine.
    [[nodiscard]] std::string whyForeign(const RequestOrigin& request) const;

    /// Whether a request carries the cookie.
    [[nodiscard]] bool hasCookie(const std::string& cookie) const;

    [[nodiscard]] bool isToken(std::string_view given) const;
    [[nodiscard]] bool isKey(std::string_view given) const;

    /// The header "Set-Cookie" for a browser that came with the token.
    [[nodiscard]] std::string setCookie() const;

    /// Where such a browser goes on. What is behind the "#" is not sent to anyone.
    [[nodiscard]] std::string pageAddress() const { return "/#key=" + secrets_.key; }

private:
    [[nodiscard]] bool isOwn(const std::string& host) const;

    Secrets secrets_;
    std::string name_;  ///< of the cookie: with the port, for browsers do not tell ports apart
    std::string port_;
};

}  // namespace workbench::serve
