#pragma once

#include <filesystem>
#include <set>
#include <utility>

namespace test_support {

/// Knows what a folder held at one time, and removes what came since: what one run left must not be
/// there for the next.
class NewFiles {
public:
    /// From now on, all that `folder` gets is new.
    explicit NewFiles(std::filesystem::path folder)
        : folder_(std::move(folder)), before_(present()) {}

    void remove() const {
        for (const std::filesystem::path& file : present()) {
            if (!before_.contains(file)) {
                std::filesystem::remove_all(file);
            }
        }
    }

private:
    [[nodiscard]] std::set<std::filesystem::path> present() const {
        std::set<std::filesystem::path> files;
        for (const std::filesystem::directory_entry& entry :
             std::filesystem::recursive_directory_iterator(folder_)) {
            files.insert(entry.path());
        }
        return files;
    }

    std::filesystem::path folder_;
    std::set<std::filesystem::path> before_;
};

}  // namespace test_support
