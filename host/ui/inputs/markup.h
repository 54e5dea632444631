#pragma once

#include <string>

/// The simple HTML of text boxes.
namespace host::ui {

/// What a formatted text shows: without its tags, with its entities as characters. "<br>" starts a
/// new line. A "<" that begins no tag and an "&" that begins no known entity are kept.
std::string plainText(const std::string& formatted);

/// A formatted text that shows `text` literally; `text` itself where nothing needs escaping.
std::string literalMarkup(const std::string& text);

}  // namespace host::ui
