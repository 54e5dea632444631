#pragma once

#include <filesystem>
#include <memory>

namespace test_support {

/// A file that cannot be deleted, but appended to, for as long as this lives.
class KeptFile {
public:
    explicit KeptFile(const std::filesystem::path& file);
    KeptFile(const KeptFile&) = delete;
    KeptFile& operator=(const KeptFile&) = delete;
    ~KeptFile();

    /// False where the file system or the user's rights do not allow that.
    [[nodiscard]] bool isKept() const;

private:
    struct Hold;
    std::unique_ptr<Hold> hold_;
};

}  // namespace test_support
