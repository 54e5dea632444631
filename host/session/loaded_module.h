#pragma once

#include <filesystem>

namespace host {

/// An add-in's module in this process.
///
/// It is found by its path, so that two copies of one file are two modules with statics of their
/// own.
class LoadedModule {
public:
    /// An entry point of a module: `run` or `stop`.
    using Entry = bool (*)(const char* context);

    LoadedModule() = default;

    /// Loads the file; throws a `SessionError` with the system's reason when it cannot.
    explicit LoadedModule(const std::filesystem::path& file);

    /// The exported function of that name, null if there is none.
    [[nodiscard]] Entry entry(const char* name) const;

    [[nodiscard]] bool isLoaded() const { return handle_ != nullptr; }

    /// Takes the module out of the process; nothing of it may be called any more.
    ///
    /// Only for a session that is over: what a module leaves subscribed has to go on working.
    void unload();

private:
    void* handle_ = nullptr;
};

}  // namespace host
