#pragma once

#include <string>

namespace tarnix {

/// A position is a number with "." between the levels, such as "1.2.3".

/// How many levels below the top `position` stands: its count of ".".
int positionDepth(const std::string& position);

/// `text` from its first character that is no indent on; an empty string where all are.
///
/// A position may be indented on screen with "`", blank, "_", "-" and "|".
std::string stripPositionPrefix(const std::string& text);

}  // namespace tarnix
