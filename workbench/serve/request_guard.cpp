#include "workbench/serve/request_guard.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <utility>

namespace workbench::serve {
namespace {

/// Takes the same time wherever the first difference is.
bool isEqual(std::string_view one, std::string_view other) {
    if (one.size() != other.size()) {
        return false;
    }
    unsigned difference = 0;
    for (std::size_t i = 0; i < one.size(); ++i) {
        difference |= static_cast<unsigned char>(one[i]) ^ static_cast<unsigned char>(other[i]);
    }
    return difference == 0;
}

}  // namespace

std::string randomToken() {
    constexpr int kWords = 8;
    constexpr std::string_view kDigits = "0123456789abcdef";
    constexpr unsigned kBitsOfDigit = 4;
    std::random_device random;
    std::string token;
    for (int word = 0; word < kWords; ++word) {
        std::uint32_t bits = random();
        for (int digit = 0; digit < kWords; ++digit) {
            token += kDigits[bits % kDigits.size()];
            bits >>= kBitsOfDigit;
        }
    }
    return token;
}

RequestGuard::RequestGuard(Secrets secrets, int port)
    : secrets_(std::move(secrets)),
      name_("workbench-" + std::to_string(port)),
      port_(std::to_string(port)) {}

bool RequestGuard::isOwn(const std::string& host) const {
    return host == "127.0.0.1:" + port_ || host == "localhost:" + port_;
}

std::string RequestGuard::whyForeign(const RequestOrigin& request) const {
    constexpr std::string_view kScheme = "http://";
    if (!request.hasOneHost || !isOwn(request.host)) {
        return "the header Host has to be 127.0.0.1:" + port_ + " or localhost:" + port_;
    }
    if (!request.site.empty() && request.site != "same-origin" && request.site != "none") {
        return "the request comes from another page";
    }
    const bool needsOrigin = request.method != "GET" && request.method != "HEAD";
    const bool isGiven = !request.origin.empty();
    const bool isOwnOrigin =
        request.origin.starts_with(kScheme) && isOwn(request.origin.substr(kScheme.size()));
    return (needsOrigin || isGiven) && !isOwnOrigin
               ? "the header Origin has to be http://" + request.host
               : "";
}

bool RequestGuard::hasCookie(const std::string& cookie) const {
    std::string_view rest = cookie;
    while (!rest.empty()) {
        std::string_view pair = rest.substr(0, rest.find(';'));
        rest.remove_prefix(std::min(pair.size() + 1, rest.size()));
        pair.remove_prefix(std::min(pair.find_first_not_of(' '), pair.size()));
        const std::size_t middle = pair.find('=');
        if (middle != std::string_view::npos && pair.substr(0, middle) == name_ &&
            isEqual(pair.substr(middle + 1), secrets_.cookie)) {
            return true;
        }
    }
    return false;
}

bool RequestGuard::isToken(std::string_view given) const { return isEqual(given, secrets_.token); }

bool RequestGuard::isKey(std::string_view given) const { return isEqual(given, secrets_.key); }

std::string RequestGuard::setCookie() const {
    return name_ + "=" + secrets_.cookie + "; HttpOnly; SameSite=Strict; Path=/";
}

}  // namespace workbench::serve
