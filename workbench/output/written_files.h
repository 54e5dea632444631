#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace workbench {

/// Files that a failure must leave as they were.
///
/// Watched files are restored at the end, unless `keep` was called: a file gets its old content,
/// one that did not exist is removed.
class WrittenFiles {
public:
    WrittenFiles() = default;
    WrittenFiles(const WrittenFiles&) = delete;
    WrittenFiles& operator=(const WrittenFiles&) = delete;
    ~WrittenFiles();

    /// To be called before the file is written. A relative path is made absolute at once.
    void watch(const std::filesystem::path& file);

    void keep() { files_.clear(); }

private:
    struct File {
        std::filesystem::path path;
        std::optional<std::string> content;
    };

    std::vector<File> files_;
};

}  // namespace workbench
