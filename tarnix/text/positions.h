#pragma once

#include <string>

namespace tarnix {

/// A position is a number with "." between the levels, such as "1.2.3".

/// How many levels below the top `position` is: its count of ".".
int positionDepth(const std::string& position);

/// `text` from its first character that is not an indent; an empty string where all are.
///
/// A position may be indented on screen with "`", space, "_", "-" and "|".
std::string stripPositionPrefix(const std::string& text);

}  // namespace tarnix
