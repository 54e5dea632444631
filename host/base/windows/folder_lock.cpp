#include "host/base/folder_lock.h"

#include <windows.h>

#include <functional>
#include <string>

namespace host {
namespace {

class Handle final : public FolderLock {
public:
    explicit Handle(HANDLE handle) : handle_(handle) {}
    ~Handle() override { ::CloseHandle(handle_); }

private:
    HANDLE handle_;
};

class OwnedMutex final : public FolderLock {
public:
    explicit OwnedMutex(HANDLE mutex) : mutex_(mutex) {}
    ~OwnedMutex() override {
        ::ReleaseMutex(mutex_);
        ::CloseHandle(mutex_);
    }

private:
    HANDLE mutex_;
};

/// The same for all spellings of a path. A name of a mutex must not contain a path.
std::wstring mutexName(const std::filesystem::path& folder) {
    std::error_code unknown;
    const std::filesystem::path full = std::filesystem::canonical(folder, unknown);
    return L"Local\\standin-writer-" +
           std::to_wstring(std::hash<std::wstring>()((unknown ? folder : full).native()));
}

}  // namespace

std::unique_ptr<FolderLock> FolderLock::take(const std::filesystem::path& folder) {
    const std::filesystem::path file = folder / "lock";
    // No other process can open the file while it is not shared.
    const HANDLE handle =
        ::CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, /*dwShareMode=*/0, nullptr,
                      OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    return std::make_unique<Handle>(handle);
}

std::unique_ptr<FolderLock> FolderLock::waitToWrite(const std::filesystem::path& folder) {
    const HANDLE mutex =
        ::CreateMutexW(nullptr, /*bInitialOwner=*/FALSE, mutexName(folder).c_str());
    if (mutex == nullptr) {
        return nullptr;
    }
    // A writer that was killed hands the mutex on as abandoned.
    if (::WaitForSingleObject(mutex, INFINITE) == WAIT_FAILED) {
        ::CloseHandle(mutex);
        return nullptr;
    }
    return std::make_unique<OwnedMutex>(mutex);
}

}  // namespace host
