#pragma once

#include <string>

/// Conversions between the 8-bit strings of the add-in and the wide strings of Windows.
namespace tarnix::platform {

/// Strings in the system's 8-bit code page: paths.
std::wstring fromCodePage(const std::string& text);

/// Strings in the 8-bit code page of the thread's language.
std::wstring fromThreadCodePage(const std::string& text);

/// A character that the code page lacks becomes a space.
std::string toCodePage(const std::wstring& text);

/// Strings in UTF-8: what documents hold.
std::wstring fromUtf8(const std::string& text);
std::string toUtf8(const std::wstring& text);

}  // namespace tarnix::platform
