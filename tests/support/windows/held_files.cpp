#include "tests/support/held_files.h"

#include <windows.h>

namespace test_support {
namespace {

/// The file held open by one who shares it with others for `sharing` alone. Null if it could not be
/// opened.
std::shared_ptr<void> openedWhileSharing(const std::filesystem::path& file, DWORD sharing) {
    void* const handle = ::CreateFileW(file.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING,
                                       FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    return {handle, [](void* open) { ::CloseHandle(open); }};
}

}  // namespace

std::shared_ptr<void> holdUndeletable(const std::filesystem::path& file) {
    return openedWhileSharing(file, FILE_SHARE_READ | FILE_SHARE_WRITE);
}

std::shared_ptr<void> holdUnwritable(const std::filesystem::path& file) {
    return openedWhileSharing(file, FILE_SHARE_READ);
}

}  // namespace test_support
