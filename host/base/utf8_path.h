#pragma once

#include <filesystem>
#include <string>

namespace host {

/// A path as UTF-8, as it is spelt on the system it belongs to.
inline std::string toUtf8(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

/// The path that a UTF-8 string names.
inline std::filesystem::path fromUtf8(const std::string& text) {
    return {std::u8string(text.begin(), text.end())};
}

}  // namespace host
