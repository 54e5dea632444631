#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace test_support {

/// A folder of the test's own, empty at first and deleted with this object.
///
/// Its files are named relative to it. It needs the standard library alone, so that a test of any
/// part may hold one.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::random_device random;
        do {
            path_ = std::filesystem::temp_directory_path() /
                    ("tarnix-test-" + std::to_string(random()));
        } while (!std::filesystem::create_directories(path_));
        path_ = std::filesystem::canonical(path_);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// The path of a file as the add-in names it, with backslashes.
    [[nodiscard]] std::string windows(const std::string& name) const {
        std::string text = (path_ / name).string();
        std::replace(text.begin(), text.end(), '/', '\\');
        return text;
    }

    /// Writes a file, and makes the folders that it lies in. Returns its path.
    std::string write(const std::filesystem::path& name, std::string_view bytes) const {
        const std::filesystem::path file = path_ / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << bytes;
        return file.string();
    }

    /// The bytes of a file, "no file" if there is none.
    [[nodiscard]] std::string read(const std::filesystem::path& name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        return file.is_open() ? std::string(std::istreambuf_iterator<char>(file), {}) : "no file";
    }

    [[nodiscard]] bool has(const std::filesystem::path& name) const {
        return std::filesystem::exists(path_ / name);
    }

    /// The names of what is in it, in UTF-8 and sorted.
    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> all;
        for (const auto& each : std::filesystem::directory_iterator(path_)) {
            const std::u8string name = each.path().filename().u8string();
            all.emplace_back(name.begin(), name.end());
        }
        std::sort(all.begin(), all.end());
        return all;
    }

    /// How many files and folders are in it, without what is in those.
    [[nodiscard]] long count() const {
        return std::distance(std::filesystem::directory_iterator(path_), {});
    }

private:
    std::filesystem::path path_;
};

}  // namespace test_support
