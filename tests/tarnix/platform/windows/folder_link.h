#pragma once

#include <windows.h>

#include <filesystem>

namespace test_support {

/// Makes a link to a folder. False where the system has no links, as Wine has not, or the user has
/// not the right to make one.
inline bool linkFolder(const std::filesystem::path& target, const std::filesystem::path& link) {
    constexpr DWORD kUnprivileged = 2;
    // Its result is no proof: some systems say yes and make nothing.
    static_cast<void>(::CreateSymbolicLinkW(link.c_str(), target.c_str(),
                                            SYMBOLIC_LINK_FLAG_DIRECTORY | kUnprivileged));
    const DWORD attributes = ::GetFileAttributesW(link.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

}  // namespace test_support
