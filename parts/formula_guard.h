#pragma once

#include <string>

namespace parts {

/// A text with an apostrophe before it where a spreadsheet would run it as a formula: where it
/// begins with one of = + - @, a tab or a line end, and is no plain number.
std::string guardedFormula(const std::string& text);

}  // namespace parts
