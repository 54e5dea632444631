#include "parts/natural_order.h"

#include <algorithm>
#include <cstddef>

namespace parts {
namespace {

bool isDigit(char character) { return character >= '0' && character <= '9'; }

unsigned char lower(char character) {
    const bool isCapital = character >= 'A' && character <= 'Z';
    return static_cast<unsigned char>(isCapital ? character - 'A' + 'a' : character);
}

/// Takes the digits from the front of a text, without leading zeros.
std::string_view takeDigits(std::string_view& text) {
    const std::size_t end = std::min(text.find_first_not_of("0123456789"), text.size());
    std::string_view digits = text.substr(0, end);
    text.remove_prefix(end);
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

int sign(std::size_t left, std::size_t right) {
    return static_cast<int>(left > right) - static_cast<int>(left < right);
}

int compareDigits(std::string_view left, std::string_view right) {
    const int byLength = sign(left.size(), right.size());
    return byLength != 0 ? byLength : left.compare(right);
}

}  // namespace

int naturalOrder(std::string_view left, std::string_view right) {
    std::string_view a = left;
    std::string_view b = right;
    while (!a.empty() && !b.empty()) {
        int order = 0;
        if (isDigit(a.front()) && isDigit(b.front())) {
            const std::string_view first = takeDigits(a);
            order = compareDigits(first, takeDigits(b));
        } else {
            order = sign(lower(a.front()), lower(b.front()));
            a.remove_prefix(1);
            b.remove_prefix(1);
        }
        if (order != 0) {
            return order;
        }
    }
    const int rest = sign(a.size(), b.size());
    return rest != 0 ? rest : left.compare(right);
}

}  // namespace parts
