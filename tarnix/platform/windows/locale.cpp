#include "tarnix/platform/locale.h"

#include <cctype>
#include <clocale>
#include <locale>
#include <stdexcept>

namespace tarnix::platform {
namespace {

constexpr const char* kCzech = "Czech";

/// Through the C++ library, which brings the C library along. False where it does not know the
/// locale; MinGW's knows none but "C".
bool useInBothLibraries() {
    try {
        std::locale::global(std::locale(kCzech));
        return true;
    } catch (const std::runtime_error&) {
        return false;
    }
}

}  // namespace

void useCzechLocale() {
    if (!useInBothLibraries() && std::setlocale(LC_ALL, kCzech) == nullptr) {
        throw std::runtime_error("bad locale name");
    }
}

std::string lowerCase(std::string text) {
    for (char& each : text) {
        // The C library's classification: the same in both cases above.
        each = static_cast<char>(std::tolower(static_cast<unsigned char>(each)));
    }
    return text;
}

}  // namespace tarnix::platform
