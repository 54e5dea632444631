#include "tarnix/platform/module_path.h"

#include "tarnix/platform/posix/paths.h"

#include <dlfcn.h>

#include <cstddef>
#include <filesystem>

namespace tarnix::platform {
namespace {

/// The path that the module which holds this very code was loaded by.
std::string loadedFrom() {
    Dl_info info = {};
    if (::dladdr(reinterpret_cast<const void*>(&loadedFrom), &info) == 0) {
        return "";
    }
    std::error_code ignored;
    return std::filesystem::absolute(info.dli_fname, ignored).lexically_normal().string();
}

/// How many wide characters of Windows a byte of UTF-8 begins.
std::size_t wideCharacters(unsigned char byte) {
    if ((byte & 0xC0) == 0x80) {
        return 0;
    }
    return byte >= 0xF0 ? 2 : 1;
}

/// The beginning of a string that takes `limit` wide characters in Windows. Half a character at the
/// end is one that no code page has, which becomes a space.
std::string cutToWideCharacters(const std::string& text, std::size_t limit) {
    std::size_t length = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t more = wideCharacters(static_cast<unsigned char>(text[i]));
        if (length + more > limit) {
            return text.substr(0, i) + std::string(limit - length, ' ');
        }
        length += more;
    }
    return text;
}

}  // namespace

std::string modulePath() { return windowsPath(cutToWideCharacters(loadedFrom(), 259)); }

}  // namespace tarnix::platform
