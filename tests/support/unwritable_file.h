#pragma once

#include <filesystem>
#include <memory>

namespace test_support {

/// A file that can be read but not written for as long as this lives, by the superuser either.
class UnwritableFile {
public:
    explicit UnwritableFile(const std::filesystem::path& file);
    UnwritableFile(const UnwritableFile&) = delete;
    UnwritableFile& operator=(const UnwritableFile&) = delete;
    ~UnwritableFile();

private:
    struct Hold;
    std::unique_ptr<Hold> hold_;
};

}  // namespace test_support
