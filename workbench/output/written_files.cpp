#include "workbench/output/written_files.h"

#include <exception>
#include <fstream>
#include <iterator>
#include <system_error>

namespace workbench {
namespace {

namespace fs = std::filesystem;

std::optional<std::string> contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        return std::nullopt;
    }
    return std::string{std::istreambuf_iterator<char>(stream), {}};
}

void restore(const fs::path& file, const std::optional<std::string>& content) {
    if (content == contentOf(file)) {
        return;
    }
    if (content) {
        std::ofstream(file, std::ios::binary | std::ios::trunc) << *content;
    } else {
        std::error_code ignored;
        fs::remove(file, ignored);
    }
}

}  // namespace

WrittenFiles::~WrittenFiles() {
    for (const File& file : files_) {
        try {
            restore(file.path, file.content);
        } catch (const std::exception&) {
            // The failure that led here is the one to report.
            continue;
        }
    }
}

void WrittenFiles::watch(const fs::path& file) {
    files_.push_back({fs::absolute(file), contentOf(file)});
}

}  // namespace workbench
