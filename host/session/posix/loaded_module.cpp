#include "host/session/loaded_module.h"

#include "host/session/session_error.h"

#include <dlfcn.h>

#include <string>

namespace host {

LoadedModule::LoadedModule(const std::filesystem::path& file)
    : handle_(::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (handle_ == nullptr) {
        throw SessionError("the add-in's module cannot be loaded: " + std::string(::dlerror()));
    }
}

LoadedModule::Entry LoadedModule::entry(const char* name) const {
    return reinterpret_cast<Entry>(::dlsym(handle_, name));
}

void LoadedModule::unload() {
    if (handle_ != nullptr) {
        ::dlclose(handle_);
        handle_ = nullptr;
    }
}

}  // namespace host
