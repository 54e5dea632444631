#include "workbench/cli/console.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

#include <cstdio>
#include <memory>

namespace workbench::console {
namespace {

std::string toUtf8(const wchar_t* text) {
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(size), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text, -1, result.data(), size, nullptr, nullptr);
    result.pop_back();  // the zero at the end
    return result;
}

std::size_t widthOf(DWORD handle) {
    constexpr std::size_t kUsual = 80;
    CONSOLE_SCREEN_BUFFER_INFO info = {};
    if (::GetConsoleScreenBufferInfo(::GetStdHandle(handle), &info) == 0) {
        return kUsual;
    }
    return static_cast<std::size_t>(info.srWindow.Right - info.srWindow.Left + 1);
}

}  // namespace

void prepare() {
    ::SetConsoleOutputCP(CP_UTF8);
    ::_setmode(::_fileno(stdout), _O_BINARY);
    ::_setmode(::_fileno(stderr), _O_BINARY);
}

std::vector<std::string> arguments(int /*count*/, char** /*values*/) {
    // What the runtime passes to `main` has gone through the system's code page.
    int count = 0;
    const std::unique_ptr<wchar_t*, decltype(&::LocalFree)> values(
        ::CommandLineToArgvW(::GetCommandLineW(), &count), &::LocalFree);
    std::vector<std::string> result;
    for (int i = 0; i < count; ++i) {
        result.push_back(toUtf8(values.get()[i]));
    }
    return result;
}

// `prepare` has switched the console to UTF-8.
Charset charset() { return Charset::Utf8; }

bool outputIsTerminal() { return ::_isatty(::_fileno(stdout)) != 0; }

bool errorIsTerminal() { return ::_isatty(::_fileno(stderr)) != 0; }

bool canOverwrite() { return true; }

std::size_t width() { return widthOf(STD_ERROR_HANDLE); }

std::size_t outputWidth() { return widthOf(STD_OUTPUT_HANDLE); }

bool opensFiles() { return true; }

}  // namespace workbench::console
