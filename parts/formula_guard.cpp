#include "parts/formula_guard.h"

#include <charconv>
#include <string_view>

namespace parts {
namespace {

constexpr std::string_view kBeginnings = "=+-@\t\r\n";

bool isPlainNumber(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return false;
        }
    }
    // What reads numbers takes "inf" and "nan(...)" for some too.
    if (text.find_first_not_of("0123456789.-") != std::string_view::npos) {
        return false;
    }
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [last, failure] =
        std::from_chars(text.data(), end, number, std::chars_format::fixed);
    return failure == std::errc() && last == end;
}

}  // namespace

std::string guardedFormula(const std::string& text) {
    const bool mayRun = !text.empty() && kBeginnings.find(text.front()) != std::string_view::npos;
    return mayRun && !isPlainNumber(text) ? "'" + text : text;
}

}  // namespace parts
