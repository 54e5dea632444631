#include "tarnix/platform/folders.h"

#include "tarnix/platform/posix/paths.h"
#include "tarnix/platform/posix/wide_text.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace tarnix::platform {
namespace {

/// What a path names, links not followed; nothing if that is not there.
std::optional<struct stat> stateOf(const std::string& path) {
    struct stat state = {};
    return ::lstat(path.c_str(), &state) == 0 ? std::optional(state) : std::nullopt;
}

bool isReadOnlyFile(const struct stat& state) {
    return S_ISREG(state.st_mode) && (state.st_mode & S_IWUSR) == 0;
}

/// Folder for temporary files as this system spells it, absolute.
std::string nativeTemporaryFolder() {
    const char* const named = std::getenv("TMPDIR");
    std::error_code failure;
    const std::filesystem::path folder =
        std::filesystem::absolute(named != nullptr && *named != '\0' ? named : "/tmp", failure);
    return failure ? "" : folder.lexically_normal().string();
}

}  // namespace

std::optional<std::u16string> temporaryFolder() {
    const std::string native = nativeTemporaryFolder();
    if (native.empty()) {
        return std::nullopt;
    }
    std::u16string folder = wideName(native);
    for (char16_t& unit : folder) {
        unit = unit == u'/' ? u'\\' : unit;
    }
    if (!folder.ends_with(u'\\')) {
        folder += u'\\';
    }
    constexpr std::size_t kLongest = 259;
    return folder.size() <= kLongest ? folder : std::u16string();
}

bool directoryExists(const std::string& path) {
    struct stat state = {};
    return ::stat(nativePath(path).c_str(), &state) == 0 && S_ISDIR(state.st_mode);
}

bool makeDirectory(const std::string& path) {
    // The folder for temporary files may be everybody's; what is put in here is the user's own.
    constexpr mode_t ownerOnly = 0700;
    return ::mkdir(nativePath(path).c_str(), ownerOnly) == 0;
}

bool removeDirectory(const std::u16string& path) { return ::rmdir(nativePath(path).c_str()) == 0; }

bool deleteFile(const std::u16string& path) {
    const std::string native = nativePath(path);
    const auto state = stateOf(native);
    return state && !isReadOnlyFile(*state) && ::unlink(native.c_str()) == 0;
}

void makeWritable(const std::string& path) {
    const std::string native = nativePath(path);
    const auto state = stateOf(native);
    if (state && S_ISREG(state->st_mode)) {
        // What fails here shows when the file is to be deleted.
        static_cast<void>(::chmod(native.c_str(), (state->st_mode & 07777) | S_IWUSR));
    }
}

}  // namespace tarnix::platform
