#include "workbench/cli/console.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>
#include <sstream>
#include <string_view>

namespace workbench::console {

void prepare() {}

std::vector<std::string> arguments(int count, char** values) { return {values, values + count}; }

bool outputIsTerminal() { return ::isatty(STDOUT_FILENO) == 1; }

bool errorIsTerminal() { return ::isatty(STDERR_FILENO) == 1; }

bool canOverwrite() {
    const char* const terminal = std::getenv("TERM");
    return terminal != nullptr && std::string_view(terminal) != "dumb" && *terminal != '\0';
}

std::size_t width() {
    constexpr std::size_t kUsual = 80;
    winsize size = {};
    const bool known = ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : kUsual;
}

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
