#include "host/session/environment.h"

#include <windows.h>

#include <cstdlib>

namespace host::environment {

std::vector<Text> temporaryFolderNames() { return {L"TMP", L"TEMP"}; }

std::optional<Text> variable(const Text& name) {
    const wchar_t* value = ::_wgetenv(name.c_str());
    return value == nullptr ? std::nullopt : std::optional<Text>(value);
}

void setVariable(const Text& name, const std::optional<Text>& value) {
    // The runtime passes the change on to the system; an empty value takes the variable away.
    ::_wputenv_s(name.c_str(), value ? value->c_str() : L"");
}

std::filesystem::path userDataFolder() {
    const std::optional<Text> named = variable(L"LOCALAPPDATA");
    return named ? std::filesystem::path(*named) : std::filesystem::path();
}

// The user's local data hold caches too; what belongs to which has a folder of its own below it.
std::filesystem::path userCacheFolder() { return userDataFolder(); }

std::filesystem::path programFolder() {
    std::wstring file(MAX_PATH, L'\0');
    DWORD length = 0;
    while ((length = ::GetModuleFileNameW(nullptr, file.data(), static_cast<DWORD>(file.size()))) ==
           file.size()) {
        file.resize(file.size() * 2);
    }
    file.resize(length);
    return std::filesystem::path(file).parent_path();
}

void showConsole() {
    // The result is whether the window was visible; without a window nothing happens.
    static_cast<void>(::ShowWindow(::GetConsoleWindow(), SW_SHOW));
}

}  // namespace host::environment
