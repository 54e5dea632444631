#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace tarnix {

/// A folder for one test, empty at first and gone with the object. Files are named as the add-in
/// names them, with backslashes.
class ScratchFolder {
public:
    ScratchFolder() {
        std::random_device random;
        path_ =
            std::filesystem::temp_directory_path() / ("tarnix-test-" + std::to_string(random()));
        std::filesystem::create_directories(path_);
        path_ = std::filesystem::canonical(path_);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// Path of a file of the folder in Windows terms.
    [[nodiscard]] std::string windows(const std::string& name) const {
        std::string text = (path_ / name).string();
        for (char& c : text) {
            c = c == '/' ? '\\' : c;
        }
        return text;
    }

    void write(const std::string& name, std::string_view content) const {
        std::ofstream(path_ / name, std::ios::binary) << content;
    }

    /// The bytes of a file, "no file" if there is none.
    [[nodiscard]] std::string read(const std::string& name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        return file.is_open() ? std::string(std::istreambuf_iterator<char>(file), {}) : "no file";
    }

    [[nodiscard]] bool has(const std::string& name) const {
        return std::filesystem::exists(path_ / name);
    }

    /// How many files and folders lie in it.
    [[nodiscard]] long count() const {
        return std::distance(std::filesystem::directory_iterator(path_), {});
    }

private:
    std::filesystem::path path_;
};

}  // namespace tarnix
