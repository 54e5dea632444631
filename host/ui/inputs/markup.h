#pragma once

#include <string>

/// The simple HTML of text boxes.
namespace host::ui {

/// What a formatted text shows: without its tags, with its entities as the characters they stand
/// for.
/// "<br>" starts a line. A "<" that begins no tag and an "&" that begins no known entity stay as
/// they are.
std::string plainText(const std::string& formatted);

/// A formatted text that shows `text` literally; the text itself wherever that will do.
std::string literalMarkup(const std::string& text);

}  // namespace host::ui
