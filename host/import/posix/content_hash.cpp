#include "host/import/content_hash.h"

#include <sha2.h>

#include <array>

namespace host {

std::string sha256Of(std::string_view bytes) {
    std::array<char, SHA256_DIGEST_STRING_LENGTH> digits = {};
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the library's own byte type
    const auto* const data = reinterpret_cast<const unsigned char*>(bytes.data());
    return ::SHA256Data(data, bytes.size(), digits.data());
}

std::string sha256OfFile(const std::filesystem::path& file) {
    std::array<char, SHA256_DIGEST_STRING_LENGTH> digits = {};
    const char* const hash = ::SHA256File(file.c_str(), digits.data());
    return hash == nullptr ? "" : hash;
}

}  // namespace host
