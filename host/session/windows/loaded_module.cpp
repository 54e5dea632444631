#include "host/session/loaded_module.h"

#include "host/base/utf8_path.h"
#include "host/session/session_error.h"

#include <windows.h>

#include <string>
#include <system_error>

namespace host {

LoadedModule::LoadedModule(const std::filesystem::path& file)
    : handle_(::LoadLibraryW(file.c_str())) {
    if (handle_ == nullptr) {
        const std::error_code reason(static_cast<int>(::GetLastError()), std::system_category());
        throw SessionError("the add-in's module cannot be loaded: " + toUtf8(file) + ": " +
                           reason.message());
    }
}

LoadedModule::Entry LoadedModule::entry(const char* name) const {
    const FARPROC found = ::GetProcAddress(static_cast<HMODULE>(handle_), name);
    // The type of an exported function is known by its name alone.
    return reinterpret_cast<Entry>(reinterpret_cast<void*>(found));
}

void LoadedModule::unload() {
    if (handle_ != nullptr) {
        ::FreeLibrary(static_cast<HMODULE>(handle_));
        handle_ = nullptr;
    }
}

}  // namespace host
