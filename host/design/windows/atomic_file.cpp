#include "host/design/atomic_file.h"

#include <windows.h>

#include <algorithm>
#include <string>
#include <system_error>
#include <utility>

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr DWORD kLongestWrite = 1 << 30;

[[noreturn]] void throwSystemError(DWORD error, const std::string& what) {
    throw std::system_error(static_cast<int>(error), std::system_category(), what);
}

/// A file handle that is open for as long as this lives.
class Handle {
public:
    explicit Handle(HANDLE handle) : handle_(handle) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { close(); }

    [[nodiscard]] HANDLE get() const { return handle_; }
    [[nodiscard]] bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }

    bool close() {
        const HANDLE handle = std::exchange(handle_, INVALID_HANDLE_VALUE);
        return handle == INVALID_HANDLE_VALUE || ::CloseHandle(handle) != 0;
    }

private:
    HANDLE handle_;
};

/// The file that a link leads to; the path itself where there is none yet.
fs::path target(const fs::path& path) {
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    return error ? path : real;
}

HANDLE createBeside(const fs::path& path, fs::path& created) {
    for (int attempt = 0; attempt < 100; ++attempt) {
        created = path;
        created +=
            L".new-" + std::to_wstring(::GetCurrentProcessId()) + L"-" + std::to_wstring(attempt);
        const HANDLE handle = ::CreateFileW(created.c_str(), GENERIC_WRITE, /*share=*/0,
                                            /*security=*/nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL,
                                            /*template=*/nullptr);
        if (handle != INVALID_HANDLE_VALUE || ::GetLastError() != ERROR_FILE_EXISTS) {
            return handle;
        }
    }
    return INVALID_HANDLE_VALUE;
}

/// The error of the first step that fails, 0 when the content has come down to the disk.
DWORD fill(Handle& file, std::string_view content) {
    while (!content.empty()) {
        const DWORD part = static_cast<DWORD>(std::min<std::size_t>(content.size(), kLongestWrite));
        DWORD written = 0;
        if (::WriteFile(file.get(), content.data(), part, &written, /*overlapped=*/nullptr) == 0) {
            return ::GetLastError();
        }
        content.remove_prefix(written);
    }
    const bool done = ::FlushFileBuffers(file.get()) != 0 && file.close();
    return done ? 0 : ::GetLastError();
}

}  // namespace

void writeFileAtomically(const fs::path& path, std::string_view content) {
    const fs::path real = target(path);
    fs::path created;
    Handle file(createBeside(real, created));
    if (!file.isOpen()) {
        throwSystemError(::GetLastError(), "cannot be created");
    }
    DWORD error = fill(file, content);
    if (error == 0 && ::MoveFileExW(created.c_str(), real.c_str(),
                                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0) {
        error = ::GetLastError();
    }
    if (error != 0) {
        file.close();
        ::DeleteFileW(created.c_str());
        throwSystemError(error, "cannot be written");
    }
}

}  // namespace host
