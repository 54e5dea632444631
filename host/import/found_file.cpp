#include "host/import/found_file.h"

#include "host/base/utf8_path.h"
#include "host/import/step_import.h"

#include <algorithm>
#include <system_error>
#include <vector>

namespace host {
namespace {

namespace fs = std::filesystem;

std::string folded(const fs::path& name) {
    std::string text = toUtf8(name);
    std::transform(text.begin(), text.end(), text.begin(), [](char each) {
        return each >= 'A' && each <= 'Z' ? static_cast<char>(each - 'A' + 'a') : each;
    });
    return text;
}

/// The entries of some folders that are called `name`, but for the case. Folders that may not be
/// read have none.
std::vector<fs::path> entriesCalled(const fs::path& name, const std::vector<fs::path>& folders) {
    const std::string wanted = folded(name);
    std::vector<fs::path> found;
    for (const fs::path& folder : folders) {
        std::error_code error;
        fs::directory_iterator entries(folder, error);
        for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
            if (folded(entries->path().filename()) == wanted) {
                found.push_back(entries->path());
            }
        }
    }
    return found;
}

std::vector<fs::path> variantsOf(const fs::path& path) {
    std::vector<fs::path> variants = {path.root_path()};
    for (const fs::path& name : path.relative_path()) {
        variants = entriesCalled(name, variants);
    }
    return variants;
}

}  // namespace

fs::path foundFile(const std::string& path) {
    fs::path file = fromUtf8(path);
    std::error_code error;
    if (fs::exists(file, error)) {
        return file;
    }
    std::vector<fs::path> variants = variantsOf(fs::absolute(file).lexically_normal());
    if (variants.empty()) {
        throw ImportError(path + ": no such file");
    }
    if (variants.size() > 1) {
        std::sort(variants.begin(), variants.end());
        throw ImportError(path + ": \"" + toUtf8(variants[0]) + "\" and \"" + toUtf8(variants[1]) +
                          "\" differ only in case; rename one");
    }
    return variants.front();
}

}  // namespace host
