#include "tarnix/platform/files.h"

#include "tarnix/platform/posix/paths.h"

#include <unistd.h>

#include <filesystem>

namespace tarnix::platform {

bool canRead(const std::string& path) {
    const std::string native = nativePath(path);
    // A stream opens folders as well here.
    std::error_code ignored;
    return std::filesystem::is_regular_file(native, ignored) && std::ifstream(native).is_open();
}

bool deleteFile(const std::string& path) { return ::unlink(nativePath(path).c_str()) == 0; }

AppendingTextFile::AppendingTextFile(const std::string& path)
    : stream_(nativePath(path), std::ios::out | std::ios::app | std::ios::binary) {}

void AppendingTextFile::write(std::string_view text) {
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        stream_ << text.substr(0, end) << "\r\n";
        text.remove_prefix(end + 1);
    }
    stream_ << text;
}

void AppendingTextFile::endLine() {
    write("\n");
    stream_.flush();
}

}  // namespace tarnix::platform
