#include "host/session/writer_lock.h"

#include <windows.h>

#include <functional>
#include <string>

namespace host {
namespace {

class OwnedMutex final : public WriterLock {
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

std::unique_ptr<WriterLock> WriterLock::take(const std::filesystem::path& folder) {
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
