#include "host/import/file_check.h"

#include "host/import/step_import.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string_view>
#include <system_error>

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kStart = "ISO-10303-21;";
constexpr std::size_t kLookedAt = 65536;

[[noreturn]] void refuse(const std::string& path, const std::string& text) {
    throw ImportError(path + ": " + text);
}

/// The first bytes of the file.
std::string startOf(const std::string& path, const fs::path& file) {
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        const std::string reason = std::generic_category().message(errno);
        refuse(path, "cannot be read (" + reason + "); a file that you may read is needed");
    }
    std::string start(kLookedAt, '\0');
    stream.read(start.data(), static_cast<std::streamsize>(start.size()));
    start.resize(static_cast<std::size_t>(stream.gcount()));
    return start;
}

bool beginsAsStep(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF")) {
        text.remove_prefix(3);
    }
    for (;;) {
        text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
        if (!text.starts_with("/*")) {
            return text.starts_with(kStart);
        }
        const std::size_t end = text.find("*/", 2);
        if (end == std::string_view::npos) {
            return false;
        }
        text.remove_prefix(end + 2);
    }
}

/// An IGES file: its first line, of 80 columns, belongs to the start section.
bool beginsAsIges(std::string_view text) {
    constexpr std::size_t kSectionColumn = 72;
    return text.size() > kSectionColumn && text[kSectionColumn] == 'S' &&
           text.find_first_of("\r\n") > kSectionColumn;
}

}  // namespace

fs::path checkStepFile(const std::string& path) { return checkStepFile(fs::path(path), path); }

fs::path checkStepFile(const fs::path& file, const std::string& path) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (status.type() == fs::file_type::not_found) {
        refuse(path, "no such file");
    }
    if (status.type() == fs::file_type::directory) {
        refuse(path, "is a folder; the path of a STEP file is needed");
    }
    if (status.type() == fs::file_type::none) {
        refuse(path,
               "cannot be read (" + error.message() + "); a file that you may read is needed");
    }
    if (status.type() != fs::file_type::regular) {
        refuse(path, "is no ordinary file; the path of a STEP file is needed");
    }
    const std::string start = startOf(path, file);
    if (start.empty()) {
        refuse(path, "is empty; a STEP file begins with \"" + std::string(kStart) + "\"");
    }
    if (!beginsAsStep(start) && !beginsAsIges(start)) {
        refuse(path, "is no STEP file; such a file begins with \"" + std::string(kStart) + "\"");
    }
    return fs::canonical(file);
}

std::string fingerprintOf(const std::vector<fs::path>& files) {
    constexpr std::uint64_t kPrime = 1099511628211U;  // 64-bit FNV-1a
    std::uint64_t hash = 14695981039346656037U;
    std::uint64_t size = 0;
    std::array<char, 65536> block = {};
    for (const fs::path& file : files) {
        std::ifstream stream(file, std::ios::binary);
        do {
            stream.read(block.data(), block.size());
            const auto count = static_cast<std::size_t>(stream.gcount());
            for (std::size_t at = 0; at < count; ++at) {
                hash = (hash ^ static_cast<unsigned char>(block[at])) * kPrime;
            }
            size += count;
        } while (stream);
    }
    std::array<char, 17> digits = {};
    std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(hash));
    return std::to_string(size) + "-" + digits.data();
}

}  // namespace host
