#include "host/import/reader/referenced_file.h"

#include <algorithm>
#include <cctype>
#include <system_error>

namespace step {
namespace {

namespace fs = std::filesystem;

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

bool isFile(const fs::path& path) {
    std::error_code ignored;
    return fs::is_regular_file(path, ignored);
}

/// One spelling for each file, so that a loop of references shows whatever links lead through it.
fs::path settled(const fs::path& path) {
    std::error_code error;
    const fs::path canonical = fs::canonical(path, error);
    return error ? path.lexically_normal() : canonical;
}

std::optional<fs::path> findIn(const fs::path& folder, const fs::path& name) {
    const fs::path exact = folder / name;
    if (isFile(exact)) {
        return settled(exact);
    }
    const std::string wanted = lowered(exact.filename().string());
    std::error_code error;
    for (fs::directory_iterator entry(exact.parent_path(), error), end; !error && entry != end;
         entry.increment(error)) {
        if (lowered(entry->path().filename().string()) == wanted && isFile(entry->path())) {
            return settled(entry->path());
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<fs::path> findReferenced(const fs::path& folder, const std::string& name) {
    std::string slashed = name;
    std::replace(slashed.begin(), slashed.end(), '\\', '/');
    if (auto found = findIn(folder, slashed)) {
        return found;
    }
    return findIn(folder, fs::path(slashed).filename());
}

}  // namespace step
