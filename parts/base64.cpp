#include "parts/base64.h"

#include <cstddef>
#include <cstdint>

namespace parts {
namespace {

constexpr std::string_view kDigits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::size_t kGroup = 3;  // bytes that become four digits

}  // namespace

std::string base64(std::string_view bytes) {
    std::string text;
    text.reserve((bytes.size() + kGroup - 1) / kGroup * 4);
    for (std::size_t from = 0; from < bytes.size(); from += kGroup) {
        const std::string_view group = bytes.substr(from, kGroup);
        std::uint32_t bits = 0;
        for (std::size_t index = 0; index < kGroup; ++index) {
            const auto byte =
                index < group.size() ? static_cast<unsigned char>(group[index]) : std::uint32_t{0};
            bits = bits << 8U | byte;
        }
        for (std::size_t digit = 0; digit < 4; ++digit) {
            const bool isPadding = digit > group.size();
            text += isPadding ? '=' : kDigits[bits >> (18U - 6U * digit) & 63U];
        }
    }
    return text;
}

}  // namespace parts
