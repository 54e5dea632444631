#pragma once

#include <string_view>

namespace parts {

/// The order in which people sort names: numbers by their value, so that "M5" comes before "M10",
/// and letters whatever their case. Different texts never compare as equal. Less than 0, 0, or
/// more.
int naturalOrder(std::string_view left, std::string_view right);

/// As the comparison of a container or a sort.
struct NaturalLess {
    using is_transparent = void;
    bool operator()(std::string_view left, std::string_view right) const {
        return naturalOrder(left, right) < 0;
    }
};

}  // namespace parts
