#include "tarnix/platform/posix/capitals.h"

#include <clocale>
#include <cwctype>
#include <memory>
#include <type_traits>

namespace tarnix::platform {
namespace {

using Letters = std::unique_ptr<std::remove_pointer_t<locale_t>, void (*)(locale_t)>;

Letters allLetters() {
    const locale_t none = nullptr;
    const locale_t all = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", none);
    return {all != nullptr ? all : ::newlocale(LC_CTYPE_MASK, "C", none), ::freelocale};
}

char16_t capital(char16_t unit, locale_t letters) {
    const wint_t upper = ::towupper_l(unit, letters);
    return ::towlower_l(upper, letters) == unit ? static_cast<char16_t>(upper) : unit;
}

}  // namespace

std::u16string inCapitals(std::u16string name) {
    static const Letters letters = allLetters();
    for (char16_t& unit : name) {
        unit = capital(unit, letters.get());
    }
    return name;
}

}  // namespace tarnix::platform
