#pragma once

#include <string>

/// Conversions between the 8-bit texts of the add-in and the wide texts of Windows.
namespace tarnix::platform {

/// Texts in the system's 8-bit code page: paths.
std::wstring fromCodePage(const std::string& text);

/// Texts in the 8-bit code page of the thread's language.
std::wstring fromThreadCodePage(const std::string& text);

/// A character that the code page lacks becomes a blank.
std::string toCodePage(const std::wstring& text);

/// Texts in UTF-8: what documents hold.
std::wstring fromUtf8(const std::string& text);
std::string toUtf8(const std::wstring& text);

}  // namespace tarnix::platform
