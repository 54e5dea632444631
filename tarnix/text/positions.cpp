#include "tarnix/text/positions.h"

#include <algorithm>

namespace tarnix {

int positionDepth(const std::string& position) {
    return static_cast<int>(std::count(position.begin(), position.end(), '.'));
}

std::string stripPositionPrefix(const std::string& text) {
    const auto first = text.find_first_not_of("` _-|");
    return first == std::string::npos ? std::string() : text.substr(first);
}

}  // namespace tarnix
