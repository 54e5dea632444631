#include "host/design/atomic_file.h"

#include <windows.h>

#include <algorithm>
#include <cwchar>
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
        return handle == nullptr || handle == INVALID_HANDLE_VALUE || ::CloseHandle(handle) != 0;
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

constexpr std::wstring_view kNewMark = L".new-";

/// The process whose number is at the end of the name of a new file beside `path`; 0 for another
/// name.
DWORD writerOf(const fs::path& path, const std::wstring& name) {
    const std::wstring begin = path.filename().native() + std::wstring(kNewMark);
    const bool isNew = name.starts_with(begin) && name.size() > begin.size() &&
                       name.find_first_not_of(L"0123456789-", begin.size()) == std::wstring::npos;
    return isNew ? std::wcstoul(name.c_str() + begin.size(), nullptr, /*base=*/10) : 0;
}

/// True while a process runs, or cannot be asked.
bool isRunning(DWORD process) {
    const Handle opened(::OpenProcess(SYNCHRONIZE, /*inherit=*/FALSE, process));
    if (opened.get() == nullptr) {
        return ::GetLastError() != ERROR_INVALID_PARAMETER;
    }
    return ::WaitForSingleObject(opened.get(), /*milliseconds=*/0) == WAIT_TIMEOUT;
}

/// Removes the new files beside `path` that processes left which were killed.
void removeAbandoned(const fs::path& path) {
    std::error_code ignored;
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(L".");
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored)) {
        const DWORD writer = writerOf(path, entry.path().filename().native());
        if (writer != 0 && !isRunning(writer)) {
            ::DeleteFileW(entry.path().c_str());
        }
    }
}

HANDLE createBeside(const fs::path& path, fs::path& created) {
    for (int attempt = 0; attempt < 100; ++attempt) {
        created = path;
        created += std::wstring(kNewMark) + std::to_wstring(::GetCurrentProcessId()) + L"-" +
                   std::to_wstring(attempt);
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

AtomicFile::AtomicFile(const fs::path& path, std::string_view content)
    : path_(target(path)), hold_(0) {
    removeAbandoned(path_);
    Handle file(createBeside(path_, created_));
    if (!file.isOpen()) {
        throwSystemError(::GetLastError(), "cannot be created");
    }
    if (const DWORD error = fill(file, content); error != 0) {
        file.close();
        ::DeleteFileW(created_.c_str());
        throwSystemError(error, "cannot be written");
    }
}

AtomicFile::AtomicFile(AtomicFile&& other) noexcept
    : path_(std::move(other.path_)),
      created_(std::exchange(other.created_, {})),
      hold_(other.hold_) {}

AtomicFile::~AtomicFile() {
    if (!created_.empty()) {
        ::DeleteFileW(created_.c_str());
    }
}

void AtomicFile::commit() {
    if (::MoveFileExW(created_.c_str(), path_.c_str(),
                      MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0) {
        throwSystemError(::GetLastError(), "cannot be written");
    }
    created_.clear();
}

void writeFileAtomically(const fs::path& path, std::string_view content) {
    AtomicFile(path, content).commit();
}

}  // namespace host
