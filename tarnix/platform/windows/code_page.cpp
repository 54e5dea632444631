#include "tarnix/platform/windows/code_page.h"

#include <windows.h>

namespace tarnix::platform {
namespace {

std::wstring widen(const std::string& text, UINT codePage) {
    const int size = static_cast<int>(text.size());
    const int length = ::MultiByteToWideChar(codePage, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    // Returns the length again, or 0 for an empty string.
    ::MultiByteToWideChar(codePage, 0, text.data(), size, wide.data(), length);
    return wide;
}

std::string narrow(const std::wstring& text, UINT codePage, DWORD flags, const char* replacement) {
    const int size = static_cast<int>(text.size());
    const int length =
        ::WideCharToMultiByte(codePage, flags, text.data(), size, nullptr, 0, replacement, nullptr);
    std::string narrowed(static_cast<std::size_t>(length), '\0');
    // Returns the length again, or 0 for an empty string.
    ::WideCharToMultiByte(codePage, flags, text.data(), size, narrowed.data(), length, replacement,
                          nullptr);
    return narrowed;
}

}  // namespace

std::wstring fromCodePage(const std::string& text) { return widen(text, CP_ACP); }

std::wstring fromThreadCodePage(const std::string& text) { return widen(text, CP_THREAD_ACP); }

std::string toCodePage(const std::wstring& text) {
    // A code page that holds everything takes neither a default character nor the flag.
    if (::GetACP() == CP_UTF8) {
        return toUtf8(text);
    }
    // Without the flag a similar letter would replace some of the missing characters.
    return narrow(text, CP_ACP, WC_NO_BEST_FIT_CHARS, " ");
}

std::wstring fromUtf8(const std::string& text) { return widen(text, CP_UTF8); }

std::string toUtf8(const std::wstring& text) { return narrow(text, CP_UTF8, 0, nullptr); }

}  // namespace tarnix::platform
