#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

namespace host {

/// A file in a private folder that goes with it. The folder is locked for as long as this lives,
/// and those that nobody has locked, which processes left that were killed, are removed when one is
/// made.
class PrivateCopy {
public:
    /// An empty file of this name that may grow to `limit` bytes; `shown` is what messages call the
    /// file that is copied. Throws `ImportError`.
    PrivateCopy(const std::string& name, std::string shown, std::uintmax_t limit);
    PrivateCopy(const PrivateCopy&) = delete;
    PrivateCopy& operator=(const PrivateCopy&) = delete;
    ~PrivateCopy();

    /// Appends. Throws `ImportError` when it grows too large or the disk is full.
    void append(const char* bytes, std::size_t count);

    /// Throws `ImportError` where not everything has been written.
    void finish();

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    std::string shown_;
    std::uintmax_t left_;
    int lock_ = -1;  ///< a descriptor of the folder; closed with this, and with the process
    std::filesystem::path path_;
    std::ofstream stream_;
};

}  // namespace host
