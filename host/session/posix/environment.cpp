#include "host/session/environment.h"

#include <sys/stat.h>

#include <cstdlib>

namespace host::environment {

std::vector<Text> temporaryFolderNames() { return {"TMPDIR"}; }

std::optional<Text> variable(const Text& name) {
    const char* value = std::getenv(name.c_str());
    return value == nullptr ? std::nullopt : std::optional<Text>(value);
}

void setVariable(const Text& name, const std::optional<Text>& value) {
    if (value) {
        ::setenv(name.c_str(), value->c_str(), /*overwrite=*/1);
    } else {
        ::unsetenv(name.c_str());
    }
}

std::filesystem::path userDataFolder() {
    const std::optional<Text> named = variable("XDG_DATA_HOME");
    if (named && std::filesystem::path(*named).is_absolute()) {
        return *named;
    }
    const std::optional<Text> home = variable("HOME");
    return home && !home->empty() ? std::filesystem::path(*home) / ".local" / "share"
                                  : std::filesystem::path();
}

std::filesystem::path programFolder() {
    std::error_code unknown;
    return std::filesystem::read_symlink("/proc/self/exe", unknown).parent_path();
}

// The window of a terminal belongs to another program here, and a module cannot hide it.
void showConsole() {}

bool makePrivateFolder(const std::filesystem::path& folder) {
    return ::mkdir(folder.c_str(), 0700) == 0;
}

}  // namespace host::environment
