#include "tarnix/platform/files.h"

#include "tarnix/platform/windows/code_page.h"

#include <windows.h>

namespace tarnix::platform {

bool canRead(const std::string& path) {
    return std::ifstream(fromCodePage(path).c_str()).is_open();
}

bool deleteFile(const std::string& path) { return ::DeleteFileA(path.c_str()) != FALSE; }

// The runtime's text mode turns each line end into CR LF.
AppendingTextFile::AppendingTextFile(const std::string& path)
    : stream_(fromCodePage(path).c_str(), std::ios::out | std::ios::app) {}

void AppendingTextFile::write(std::string_view text) { stream_ << text; }

void AppendingTextFile::endLine() {
    write("\n");
    stream_.flush();
}

}  // namespace tarnix::platform
