#include "samples/step_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace samples {
namespace {

/// Takes the first code point from well-formed UTF-8.
std::uint32_t takePoint(std::string_view& utf8) {
    const auto lead = static_cast<unsigned char>(utf8.front());
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    std::uint32_t point = length == 1 ? lead : lead & (0xFFU >> (length + 1));
    for (std::size_t at = 1; at < length; ++at) {
        point = (point << 6) | (static_cast<unsigned char>(utf8[at]) & 0x3FU);
    }
    utf8.remove_prefix(length);
    return point;
}

}  // namespace

std::string StepText::add(const std::string& entity) {
    std::string& reference = known_[entity];
    if (reference.empty()) {
        reference = addOwn(entity);
    }
    return reference;
}

std::string StepText::addOwn(const std::string& entity) {
    std::string reference = "#";
    reference += std::to_string(++last_);
    data_ += reference + "=" + entity + ";\n";
    return reference;
}

std::string StepText::file(std::string_view name) const {
    std::string text = "ISO-10303-21;\nHEADER;\n";
    text += "FILE_DESCRIPTION(('A sample'),'2;1');\n";
    text +=
        "FILE_NAME(" + literal(name) + ",'2024-01-01T00:00:00',(''),(''),'','make_samples','');\n";
    text += "FILE_SCHEMA(('AUTOMOTIVE_DESIGN { 1 0 10303 214 1 1 1 1 }'));\nENDSEC;\nDATA;\n";
    return text + data_ + "ENDSEC;\nEND-ISO-10303-21;\n";
}

std::string literal(std::string_view utf8) {
    std::string text = "'";
    bool escaped = false;
    while (!utf8.empty()) {
        const std::uint32_t point = takePoint(utf8);
        if (escaped != (point >= 0x80)) {
            escaped = !escaped;
            text += escaped ? "\\X2\\" : "\\X0\\";
        }
        if (escaped) {
            std::array<char, 16> digits = {};
            std::snprintf(digits.data(), digits.size(), "%04X", static_cast<unsigned>(point));
            text += digits.data();
        } else if (point == '\'') {
            text += "''";
        } else {
            text += static_cast<char>(point);
        }
    }
    return text + (escaped ? "\\X0\\'" : "'");
}

std::string real(double value, int decimals) {
    const double unit = std::pow(10, decimals);
    const double rounded = std::round(value * unit) / unit + 0.0;  // no negative zero
    std::array<char, 64> digits = {};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), rounded,
                                   std::chars_format::fixed, decimals);
    std::string text(digits.data(), end.ptr);
    return text.substr(0, text.find_last_not_of('0') + 1);
}

}  // namespace samples
