#include "tarnix/platform/folders.h"

#include "tarnix/platform/posix/file_kind.h"
#include "tarnix/platform/posix/paths.h"
#include "tarnix/platform/posix/wide_text.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace tarnix::platform {
namespace {

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

bool removeDirectory(const std::u16string& path) {
    std::string native = nativePath(path);
    // With a separator after it, a link would be what it refers to.
    while (native.size() > 1 && native.ends_with('/')) {
        native.pop_back();
    }
    return isLinkToFolder(native) ? ::unlink(native.c_str()) == 0 : ::rmdir(native.c_str()) == 0;
}

bool deleteFile(const std::u16string& path) { return removeFile(nativePath(path)); }

void makeWritable(const std::string& path) {
    const std::string native = nativePath(path);
    const mode_t mode = modeOf(native);
    if (S_ISREG(mode)) {
        // What fails here shows when the file is to be deleted.
        static_cast<void>(::chmod(native.c_str(), (mode & 07777) | S_IWUSR));
    }
}

}  // namespace tarnix::platform
