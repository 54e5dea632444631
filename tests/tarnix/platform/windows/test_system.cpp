#include "tests/tarnix/platform/test_system.h"

#include <windows.h>

#include <utility>

namespace tarnix::test {
namespace {

/// 2001-01-01, in the tenths of microseconds since 1601 that Windows counts.
constexpr FILETIME kLongAgo = {.dwLowDateTime = 0xC89DC000, .dwHighDateTime = 0x01C07385};

std::shared_ptr<void> openedFor(const std::filesystem::path& path, DWORD access) {
    constexpr DWORD everyone = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    void* const handle = ::CreateFileW(path.c_str(), access, everyone, nullptr, OPEN_EXISTING,
                                       FILE_ATTRIBUTE_NORMAL, nullptr);
    return {handle, [](void* open) { ::CloseHandle(open); }};
}

}  // namespace

std::shared_ptr<void> loadModule(const std::filesystem::path& path) {
    void* const module = ::LoadLibraryW(path.c_str());
    return {module, [](void* handle) {
                if (handle != nullptr) {
                    ::FreeLibrary(static_cast<HMODULE>(handle));
                }
            }};
}

void* functionOf(const std::shared_ptr<void>& module, const char* name) {
    return reinterpret_cast<void*>(::GetProcAddress(static_cast<HMODULE>(module.get()), name));
}

std::filesystem::path longPath(const std::filesystem::path& path) {
    return L"\\\\?\\" + std::filesystem::path(path).make_preferred().wstring();
}

long processNumber() { return static_cast<long>(::GetCurrentProcessId()); }

ReadWatch::ReadWatch(std::filesystem::path file) : file_(std::move(file)) {
    ::SetFileTime(openedFor(file_, FILE_WRITE_ATTRIBUTES).get(), nullptr, &kLongAgo, nullptr);
}

bool ReadWatch::wasRead() const {
    FILETIME access = {};
    ::GetFileTime(openedFor(file_, FILE_READ_ATTRIBUTES).get(), nullptr, &access, nullptr);
    return ::CompareFileTime(&access, &kLongAgo) != 0;
}

// A file that someone has open without allowing its deletion.
std::shared_ptr<void> holdUndeletable(const std::filesystem::path& file) {
    void* const handle =
        ::CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    return {handle, [](void* open) { ::CloseHandle(open); }};
}

}  // namespace tarnix::test
