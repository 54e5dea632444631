#include "host/session/environment.h"

#include <sys/stat.h>

#include <cstdlib>

namespace host::environment {
namespace {

/// The folder that a variable names, else one in the user's home.
std::filesystem::path baseFolder(const Text& name, const std::filesystem::path& inHome) {
    const std::optional<Text> named = variable(name);
    if (named && std::filesystem::path(*named).is_absolute()) {
        return *named;
    }
    const std::optional<Text> home = variable("HOME");
    return home && !home->empty() ? std::filesystem::path(*home) / inHome : std::filesystem::path();
}

}  // namespace

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
    return baseFolder("XDG_DATA_HOME", std::filesystem::path(".local") / "share");
}

std::filesystem::path userCacheFolder() { return baseFolder("XDG_CACHE_HOME", ".cache"); }

std::filesystem::path programFolder() {
    std::error_code unknown;
    return std::filesystem::read_symlink("/proc/self/exe", unknown).parent_path();
}

// The window of a terminal belongs to another program here, and a module cannot hide it.
void showConsole() {}

}  // namespace host::environment
