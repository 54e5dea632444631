#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace workbench {

/// Files that a failure must leave as they were.
///
/// What was handed to `watch` is put back at the end, unless `keep` was called: a file gets its old
/// content, one that was not there goes.
class WrittenFiles {
public:
    WrittenFiles() = default;
    WrittenFiles(const WrittenFiles&) = delete;
    WrittenFiles& operator=(const WrittenFiles&) = delete;
    ~WrittenFiles();

    /// To be called before the file is written; a relative path starts in the working directory of
    /// this moment.
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
