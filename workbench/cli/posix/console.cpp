#include "workbench/cli/console.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <sstream>
#include <string_view>

namespace workbench::console {
namespace {

std::size_t widthOf(int descriptor) {
    constexpr std::size_t kUsual = 80;
    winsize size = {};
    const bool known = ::ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : kUsual;
}

}  // namespace

void prepare() {}

std::vector<std::string> arguments(int count, char** values) { return {values, values + count}; }

Charset charset() {
    // The first of these that is set and not empty decides, as for the C library.
    for (const char* const name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const char* const value = std::getenv(name);
        if (value != nullptr && *value != '\0') {
            std::string locale = value;
            std::ranges::transform(locale, locale.begin(),
                                   [](unsigned char each) { return std::tolower(each); });
            const bool isUtf8 = locale.find("utf-8") != std::string::npos ||
                                locale.find("utf8") != std::string::npos;
            return isUtf8 ? Charset::Utf8 : Charset::Ascii;
        }
    }
    return Charset::Ascii;
}

bool outputIsTerminal() { return ::isatty(STDOUT_FILENO) == 1; }

bool errorIsTerminal() { return ::isatty(STDERR_FILENO) == 1; }

bool canOverwrite() {
    const char* const terminal = std::getenv("TERM");
    return terminal != nullptr && std::string_view(terminal) != "dumb" && *terminal != '\0';
}

std::size_t width() { return widthOf(STDERR_FILENO); }

std::size_t outputWidth() { return widthOf(STDOUT_FILENO); }

bool opensFiles() {
    const char* const path = std::getenv("PATH");
    std::istringstream folders(path == nullptr ? "" : path);
    for (std::string folder; std::getline(folders, folder, ':');) {
        if (::access((folder + "/xdg-open").c_str(), X_OK) == 0) {
            return true;
        }
    }
    return false;
}

}  // namespace workbench::console
