#include "tarnix/helpdesk/folder_deletion.h"

#include "tarnix/helpdesk/support_folder.h"
#include "tarnix/platform/folders.h"

#include <cstddef>
#include <optional>

namespace tarnix {
namespace {

using platform::FolderSearch;
using platform::FoundFile;

/// Two strings in one, with nothing put in between; nothing if it does not fit into 260 units, the
/// terminating zero included.
std::optional<std::u16string> joined(const std::u16string& path, const std::u16string& name) {
    constexpr std::size_t kLongest = 259;
    return path.size() + name.size() <= kLongest ? std::optional(path + name) : std::nullopt;
}

bool deleteFolder(const std::u16string& path) {
    // Without a backslash at its end, the pattern of the inner deletion searches the parent, and
    // its first entry is the subfolder: one that is empty goes there, and not a second time here.
    if (!deleteDirectoryTree(path)) {
        return false;
    }
    static_cast<void>(platform::removeDirectory(path));
    return true;
}

bool deleteFile(const std::u16string& path, bool isReadOnly) {
    if (isReadOnly) {
        platform::makeWritable(lowBytes(path));
    }
    return platform::deleteFile(path);
}

bool deleteFound(const std::u16string& folder, const FoundFile& found) {
    if (found.name == u"." || found.name == u"..") {
        return true;
    }
    const auto path = joined(folder, found.name);
    if (!path) {
        return false;
    }
    return found.isDirectory ? deleteFolder(*path) : deleteFile(*path, found.isReadOnly);
}

/// Deletes what a folder holds; true if the search came to its end.
bool deleteContent(const std::u16string& folder) {
    const auto pattern = joined(folder, u"*");
    if (!pattern) {
        return false;
    }
    // The first entry is taken for "." and not looked at.
    FolderSearch search(*pattern);
    if (!search) {
        return false;
    }
    while (const auto found = search.next()) {
        if (!deleteFound(folder, *found)) {
            return false;
        }
    }
    return search.isComplete();
}

}  // namespace

bool deleteDirectoryTree(const std::u16string& path) {
    // The search has ended before the folder goes: an open one would keep it.
    return deleteContent(path) && platform::removeDirectory(path);
}

}  // namespace tarnix
