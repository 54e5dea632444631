#include "workbench/serve/data_folder.h"

#include "workbench/serve/protocol_error.h"

#include "host/base/utf8_path.h"

#include <algorithm>
#include <cstdint>
#include <tuple>
#include <vector>

namespace workbench::serve {
namespace {

namespace fs = std::filesystem;

struct Entry {
    std::string name;
    bool isFolder = false;
    std::uintmax_t size = 0;
};

bool isIn(const fs::path& home, const fs::path& file) {
    std::error_code failure;
    const fs::path full = fs::canonical(file, failure);
    return !failure && std::ranges::mismatch(home, full).in1 == home.end();
}

/// What is in a folder, without links that lead out of the data.
std::vector<Entry> entriesOf(const fs::path& folder, const fs::path& home) {
    std::vector<Entry> entries;
    std::error_code failure;
    for (fs::directory_iterator each(folder, failure), end; !failure && each != end;
         each.increment(failure)) {
        std::error_code ignored;
        Entry entry = {.name = host::toUtf8(each->path().filename())};
        entry.isFolder = each->is_directory(ignored);
        entry.size = entry.isFolder ? 0 : each->file_size(ignored);
        if (!entry.name.starts_with('.') && (entry.isFolder || each->is_regular_file(ignored)) &&
            isIn(home, each->path())) {
            entries.push_back(std::move(entry));
        }
    }
    std::ranges::sort(entries, [](const Entry& one, const Entry& other) {
        return std::tuple(!one.isFolder, one.name) < std::tuple(!other.isFolder, other.name);
    });
    return entries;
}

bool isHiddenOrUp(const fs::path& part) { return part.native().front() == '.'; }

}  // namespace

fs::path DataFolder::resolved(const std::string& name) const {
    const fs::path relative = host::fromUtf8(name);
    std::error_code failure;
    const bool isPlain = !relative.has_root_path() && name.find('\0') == std::string::npos &&
                         std::ranges::none_of(relative, [](const fs::path& part) {
                             return !part.empty() && isHiddenOrUp(part);
                         });
    const fs::path home = fs::canonical(folder_, failure);
    fs::path full = fs::weakly_canonical(home / relative, failure);
    if (!isPlain || failure || std::ranges::mismatch(home, full).in1 != home.end()) {
        throw ProtocolError(kNotFound, "\"" + name +
                                           "\" is not in the data folder; a name begins there, as "
                                           "in \"project/box.step\"");
    }
    return full;
}

fs::path DataFolder::existingFolder(const std::string& name) const {
    fs::path folder = resolved(name);
    std::error_code ignored;
    if (!fs::is_directory(folder, ignored)) {
        throw ProtocolError(kNotFound, "no such folder: \"" + name + "\"");
    }
    return folder;
}

std::string DataFolder::folderName(const fs::path& folder) const {
    std::error_code failure;
    const fs::path home = fs::canonical(folder_, failure);
    const fs::path full = fs::canonical(folder, failure);
    const bool isInside = !failure && full != home && fs::is_directory(full, failure) &&
                          std::ranges::mismatch(home, full).in1 == home.end();
    return isInside ? host::toUtf8(fs::path(full.lexically_relative(home).generic_string())) : "";
}

Json DataFolder::list(const std::string& name) const {
    const fs::path folder = existingFolder(name);
    std::error_code ignored;
    const fs::path home = fs::canonical(folder_, ignored);
    Json entries = Json::array();
    for (const Entry& each : entriesOf(folder, home)) {
        Json entry = {{"name", each.name}, {"folder", each.isFolder}};
        if (!each.isFolder) {
            entry["size"] = each.size;
        }
        entries.push_back(std::move(entry));
    }
    return {{"folder", name}, {"entries", std::move(entries)}};
}

fs::path DataFolder::existing(const std::string& name) const {
    fs::path file = resolved(name);
    std::error_code ignored;
    if (!fs::is_regular_file(file, ignored)) {
        throw ProtocolError(kNotFound, "no such file: \"" + name + "\"");
    }
    return file;
}

fs::path DataFolder::writable(const std::string& name) const {
    fs::path file = resolved(name);
    std::error_code ignored;
    if (!file.has_filename() || fs::is_directory(file, ignored)) {
        throw ProtocolError(kConflict, "\"" + name + "\" is a folder; name a file");
    }
    if (!fs::is_directory(file.parent_path(), ignored)) {
        throw ProtocolError(kNotFound, "no such folder for \"" + name + "\"");
    }
    return file;
}

}  // namespace workbench::serve
