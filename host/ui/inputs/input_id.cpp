#include "host/ui/inputs/input_id.h"

#include <charconv>
#include <cstddef>
#include <string_view>

namespace host::ui {
namespace {

/// As many digits fit into 32 bits whatever they are.
constexpr std::size_t kMostDigits = 9;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Where the number begins that a text ends in, without a zero in front of others.
std::size_t numberIn(std::string_view text) {
    std::size_t begin = text.size();
    std::size_t number = begin;
    while (begin > 0 && isDigit(text[begin - 1]) && text.size() - begin < kMostDigits) {
        --begin;
        if (text[begin] != '0' || begin + 1 == text.size()) {
            number = begin;
        }
    }
    return number;
}

}  // namespace

InputId::InputId(const std::string& text, StringPool& pool)
    : stem_(pool.share(std::string_view(text).substr(0, numberIn(text)))), number_(kNone) {
    std::from_chars(text.data() + stem_->size(), text.data() + text.size(), number_);
}

std::optional<InputId> InputId::find(const std::string& text, const StringPool& pool) {
    const std::string* const stem = pool.find(std::string_view(text).substr(0, numberIn(text)));
    if (stem == nullptr) {
        return std::nullopt;
    }
    InputId found(stem, kNone);
    std::from_chars(text.data() + stem->size(), text.data() + text.size(), found.number_);
    return found;
}

std::string InputId::text() const {
    return number_ == kNone ? *stem_ : *stem_ + std::to_string(number_);
}

std::uint32_t InputId::hash() const {
    constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15;
    constexpr unsigned kHalf = 32;
    const auto stem = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(stem_));
    return static_cast<std::uint32_t>(((stem * kSpread) ^ number_) * kSpread >> kHalf);
}

}  // namespace host::ui
