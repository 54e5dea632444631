#pragma once

#include "host/base/owned_folder.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

namespace host {

/// A file in a folder of this process that goes with it.
class PrivateCopy {
public:
    /// An empty file of this name that may grow to `limit` bytes; `shown` is what messages call the
    /// file that is copied. Throws `ImportError`.
    PrivateCopy(const std::string& name, std::string shown, std::uintmax_t limit);
    PrivateCopy(const PrivateCopy&) = delete;
    PrivateCopy& operator=(const PrivateCopy&) = delete;

    /// Appends. Throws `ImportError` when it grows too large or the disk is full.
    void append(const char* bytes, std::size_t count);

    /// Throws `ImportError` where not everything has been written.
    void finish();

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    std::string shown_;
    std::uintmax_t left_;
    std::unique_ptr<OwnedFolder> folder_;
    std::filesystem::path path_;
    std::ofstream stream_;
};

}  // namespace host
