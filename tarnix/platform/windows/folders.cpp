#include "tarnix/platform/folders.h"

#include "tarnix/platform/windows/wide_text.h"

#include <windows.h>

#include <direct.h>
#include <io.h>
#include <sys/stat.h>

#include <array>

namespace tarnix::platform {

std::optional<std::u16string> temporaryFolder() {
    // A name that does not fit leaves an empty string in the buffer, and a result that is not 0.
    static std::array<wchar_t, MAX_PATH> buffer = {};
    buffer.fill(L'\0');
    if (::GetTempPathW(static_cast<DWORD>(buffer.size()), buffer.data()) == 0) {
        return std::nullopt;
    }
    buffer.back() = L'\0';
    return fromWide(buffer.data());
}

bool directoryExists(const std::string& path) {
    const DWORD attributes = ::GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool makeDirectory(const std::string& path) { return ::_mkdir(path.c_str()) == 0; }

bool removeDirectory(const std::u16string& path) {
    return ::RemoveDirectoryW(toWide(path).c_str()) != FALSE;
}

bool deleteFile(const std::u16string& path) { return ::DeleteFileW(toWide(path).c_str()) != FALSE; }

void makeWritable(const std::string& path) {
    // What fails here shows when the file is to be deleted.
    static_cast<void>(::_chmod(path.c_str(), _S_IWRITE));
}

struct FolderSearch::State {
    explicit State(HANDLE opened) : handle(opened) {}
    State(const State&) = delete;
    State& operator=(const State&) = delete;
    ~State() { ::FindClose(handle); }

    HANDLE handle;
    DWORD error = ERROR_SUCCESS;
};

FolderSearch::FolderSearch(const std::u16string& pattern) {
    WIN32_FIND_DATAW first = {};
    const HANDLE handle = ::FindFirstFileW(toWide(pattern).c_str(), &first);
    if (handle != INVALID_HANDLE_VALUE) {
        state_ = std::make_unique<State>(handle);
    }
}

FolderSearch::~FolderSearch() = default;

std::optional<FoundFile> FolderSearch::next() {
    WIN32_FIND_DATAW found = {};
    if (::FindNextFileW(state_->handle, &found) == FALSE) {
        state_->error = ::GetLastError();
        return std::nullopt;
    }
    return FoundFile{.name = fromWide(found.cFileName),
                     .isDirectory = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
                     .isReadOnly = (found.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0};
}

bool FolderSearch::isComplete() const { return state_->error == ERROR_NO_MORE_FILES; }

}  // namespace tarnix::platform
