#include "tarnix/platform/locale.h"

#include <locale>
#include <stdexcept>

namespace tarnix::platform {
namespace {

std::locale czechLocale() {
    try {
        return std::locale("cs_CZ.UTF-8");
    } catch (const std::runtime_error&) {
        // The text of the library's own exception differs from one system to the next.
        throw std::runtime_error("bad locale name");
    }
}

}  // namespace

void useCzechLocale() { std::locale::global(czechLocale()); }

std::string lowerCase(std::string text) {
    const auto& classification = std::use_facet<std::ctype<char>>(std::locale());
    classification.tolower(text.data(), text.data() + text.size());
    return text;
}

}  // namespace tarnix::platform
