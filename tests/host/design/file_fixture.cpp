#include "tests/host/design/file_fixture.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>

namespace host {

namespace fs = std::filesystem;

FileTest::FileTest()
    : folder(fs::temp_directory_path() /
             ("design-file-" + std::to_string(std::random_device()()))) {
    fs::create_directories(folder);
}

FileTest::~FileTest() {
    std::error_code error;
    fs::permissions(folder, fs::perms::owner_all, error);
    fs::remove_all(folder, error);
}

std::string FileTest::read(const fs::path& path) const {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void FileTest::write(const fs::path& path, const std::string& content) const {
    std::ofstream(path, std::ios::binary) << content;
}

std::vector<std::string> FileTest::names() const {
    std::vector<std::string> all;
    for (const fs::directory_entry& each : fs::directory_iterator(folder)) {
        const std::u8string name = each.path().filename().u8string();
        all.emplace_back(name.begin(), name.end());
    }
    std::sort(all.begin(), all.end());
    return all;
}

}  // namespace host
