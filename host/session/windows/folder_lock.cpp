#include "host/session/folder_lock.h"

#include <windows.h>

namespace host {
namespace {

class Handle final : public FolderLock {
public:
    explicit Handle(HANDLE handle) : handle_(handle) {}
    ~Handle() override { ::CloseHandle(handle_); }

private:
    HANDLE handle_;
};

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

}  // namespace host
