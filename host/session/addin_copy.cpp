#include "host/session/addin_copy.h"

#include "host/base/utf8_path.h"
#include "host/import/found_file.h"
#include "host/session/session_error.h"

#include <algorithm>
#include <fstream>
#include <system_error>
#include <vector>

namespace host {
namespace {

namespace fs = std::filesystem;

bool sameContent(const fs::path& one, const fs::path& other) {
    std::error_code ignored;
    if (fs::file_size(one, ignored) != fs::file_size(other, ignored)) {
        return false;
    }
    std::ifstream left(one, std::ios::binary);
    std::ifstream right(other, std::ios::binary);
    constexpr std::size_t kBlock = 65536;
    std::vector<char> leftBlock(kBlock);
    std::vector<char> rightBlock(kBlock);
    while (left && right) {
        left.read(leftBlock.data(), kBlock);
        right.read(rightBlock.data(), kBlock);
        if (left.gcount() != right.gcount() ||
            !std::equal(leftBlock.begin(), leftBlock.begin() + left.gcount(), rightBlock.begin())) {
            return false;
        }
    }
    return left.eof() && right.eof();
}

bool isOutdated(const fs::path& copy, const fs::path& original, bool compareContent) {
    if (!fs::exists(copy)) {
        return true;
    }
    return compareContent ? !sameContent(copy, original)
                          : fs::last_write_time(copy) < fs::last_write_time(original);
}

/// Through a new file: a process that still has the old module open keeps it unchanged.
void copyFile(const fs::path& from, const fs::path& to) {
    const fs::path fresh = to.parent_path() / (to.filename().native() + fs::path(".new").native());
    fs::remove(fresh);
    fs::copy_file(from, fresh);
    fs::rename(fresh, to);
}

}  // namespace

fs::path AddinFiles::module() const { return folder / fromUtf8(name + ".dll"); }

fs::path AddinFiles::manifest() const { return folder / fromUtf8(name + ".manifest"); }

fs::path AddinFiles::resource(const std::string& resourceName) const {
    return foundFile(toUtf8((folder / fromUtf8(resourceName)).lexically_normal()));
}

AddinFiles findAddin(const fs::path& folder) {
    fs::path full = fs::absolute(folder).lexically_normal();
    if (full.filename().empty()) {
        full = full.parent_path();
    }
    AddinFiles addin{full, toUtf8(full.filename())};
    for (const fs::path& needed : {addin.manifest(), addin.module()}) {
        std::error_code ignored;
        if (!fs::is_regular_file(needed, ignored)) {
            throw SessionError("no add-in there: " + toUtf8(needed) + " is missing");
        }
    }
    return addin;
}

AddinFiles copyAddin(const AddinFiles& installed, const fs::path& parent) {
    AddinFiles copy{parent / fromUtf8(installed.name), installed.name};
    try {
        fs::create_directories(copy.folder);
        for (const fs::directory_entry& entry :
             fs::recursive_directory_iterator(installed.folder)) {
            const fs::path target = copy.folder / entry.path().lexically_relative(installed.folder);
            if (entry.is_directory()) {
                fs::create_directories(target);
                continue;
            }
            const bool isCode =
                entry.path() == installed.module() || entry.path() == installed.manifest();
            if (isOutdated(target, entry.path(), isCode)) {
                copyFile(entry.path(), target);
            }
        }
    } catch (const fs::filesystem_error& error) {
        throw SessionError("cannot copy the add-in: " + std::string(error.what()));
    }
    return copy;
}

}  // namespace host
