#include "host/import/content_hash.h"

#include <windows.h>

#include <bcrypt.h>

#include <array>
#include <fstream>
#include <stdexcept>
#include <vector>

namespace host {
namespace {

void require(NTSTATUS status) {
    if (status < 0) {
        throw std::runtime_error("the system cannot compute SHA-256");
    }
}

/// SHA-256 of what is added, by the system's cryptography.
class Sha256 {
public:
    Sha256() {
        require(::BCryptOpenAlgorithmProvider(&algorithm_, BCRYPT_SHA256_ALGORITHM,
                                              /*pszImplementation=*/nullptr, /*dwFlags=*/0));
        const NTSTATUS status = ::BCryptCreateHash(algorithm_, &hash_, nullptr, 0, nullptr, 0, 0);
        if (status < 0) {
            ::BCryptCloseAlgorithmProvider(algorithm_, /*dwFlags=*/0);
        }
        require(status);
    }
    Sha256(const Sha256&) = delete;
    Sha256& operator=(const Sha256&) = delete;
    ~Sha256() {
        ::BCryptDestroyHash(hash_);
        ::BCryptCloseAlgorithmProvider(algorithm_, /*dwFlags=*/0);
    }

    void add(std::string_view bytes) {
        auto* const data = reinterpret_cast<PUCHAR>(const_cast<char*>(bytes.data()));
        require(::BCryptHashData(hash_, data, static_cast<ULONG>(bytes.size()), /*dwFlags=*/0));
    }

    std::string digits() {
        constexpr std::size_t kBytes = 32;
        std::array<UCHAR, kBytes> bytes = {};
        require(::BCryptFinishHash(hash_, bytes.data(), kBytes, /*dwFlags=*/0));
        constexpr std::string_view kHexadecimal = "0123456789abcdef";
        std::string text;
        for (const UCHAR byte : bytes) {
            text += kHexadecimal[byte / kHexadecimal.size()];
            text += kHexadecimal[byte % kHexadecimal.size()];
        }
        return text;
    }

private:
    BCRYPT_ALG_HANDLE algorithm_ = nullptr;
    BCRYPT_HASH_HANDLE hash_ = nullptr;
};

}  // namespace

std::string sha256Of(std::string_view bytes) {
    Sha256 hash;
    hash.add(bytes);
    return hash.digits();
}

std::string sha256OfFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        return "";
    }
    Sha256 hash;
    constexpr std::size_t kBlock = 1 << 16;
    std::vector<char> block(kBlock);
    while (stream) {
        stream.read(block.data(), kBlock);
        hash.add({block.data(), static_cast<std::size_t>(stream.gcount())});
    }
    return stream.bad() ? "" : hash.digits();
}

}  // namespace host
