#include "tarnix/platform/files.h"

#include "tarnix/platform/windows/code_page.h"

#include <windows.h>

#include <fstream>

namespace tarnix::platform {

bool canRead(const std::string& path) {
    return std::ifstream(fromCodePage(path).c_str()).is_open();
}

bool deleteFile(const std::string& path) { return ::DeleteFileA(path.c_str()) != FALSE; }

}  // namespace tarnix::platform
