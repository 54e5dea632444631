#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tarnix {

/// The element at `index`; throws `std::out_of_range` ("invalid vector subscript") where there is
/// none. The message is the same from every compiler, unlike that of `std::vector::at`.
template <class T>
const T& at(const std::vector<T>& elements, std::size_t index) {
    if (index >= elements.size()) {
        throw std::out_of_range("invalid vector subscript");
    }
    return elements[index];
}

/// The same for an element that is to be changed.
template <class T>
T& at(std::vector<T>& elements, std::size_t index) {
    if (index >= elements.size()) {
        throw std::out_of_range("invalid vector subscript");
    }
    return elements[index];
}

/// What `text` holds from `position` on; throws `std::out_of_range` ("invalid string position")
/// where `text` is shorter than that. Its end is a valid position, and returns an empty string.
inline std::string substringFrom(const std::string& text, std::size_t position) {
    if (position > text.size()) {
        throw std::out_of_range("invalid string position");
    }
    return text.substr(position);
}

/// `text` with the first `part` of it replaced by `with`; throws `std::out_of_range` ("invalid
/// string position") where it has none.
inline std::string replaceFirst(std::string text, std::string_view part, std::string_view with) {
    const std::size_t position = text.find(part);
    if (position == std::string::npos) {
        throw std::out_of_range("invalid string position");
    }
    return text.replace(position, part.size(), with);
}

}  // namespace tarnix
