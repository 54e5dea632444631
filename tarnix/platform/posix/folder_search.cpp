#include "tarnix/platform/folders.h"

#include "tarnix/platform/posix/capitals.h"
#include "tarnix/platform/posix/wide_text.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace tarnix::platform {
namespace {

using Directory = std::unique_ptr<DIR, int (*)(DIR*)>;

/// "." first and ".." second, whatever else begins with a full stop or with less.
int rank(const std::u16string& name) { return name == u"." ? 0 : name == u".." ? 1 : 2; }

bool comesBefore(const FoundFile& one, const FoundFile& other) {
    if (rank(one.name) != rank(other.name)) {
        return rank(one.name) < rank(other.name);
    }
    const std::u16string left = inCapitals(one.name);
    const std::u16string right = inCapitals(other.name);
    return left != right ? left < right : one.name < other.name;
}

/// Whether a name fits the last part of a pattern, both in capitals.
bool fits(const std::u16string& name, const std::u16string& pattern) {
    return pattern.ends_with(u'*') ? name.starts_with(pattern.substr(0, pattern.size() - 1))
                                   : name == pattern;
}

/// The folder that a pattern is about, "." for none.
std::string folderOf(const std::u16string& pattern) {
    const std::size_t end = pattern.rfind(u'\\');
    if (end == std::u16string::npos) {
        return ".";
    }
    return end == 0 ? "/" : nativePath(pattern.substr(0, end));
}

Directory openDirectory(const std::string& path) {
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC);
    DIR* const directory = descriptor >= 0 ? ::fdopendir(descriptor) : nullptr;
    if (descriptor >= 0 && directory == nullptr) {
        ::close(descriptor);
    }
    return {directory, ::closedir};
}

/// Of what `name` is in a folder, or of what a link of that name refers to; 0 if it is not there.
mode_t modeOf(DIR* directory, const char* name, bool followsLink) {
    struct stat state = {};
    const int flags = followsLink ? 0 : AT_SYMLINK_NOFOLLOW;
    return ::fstatat(::dirfd(directory), name, &state, flags) == 0 ? state.st_mode : 0;
}

FoundFile entryOf(DIR* directory, const char* name) {
    const mode_t mode = modeOf(directory, name, /*followsLink=*/false);
    return {.name = wideName(name),
            .isDirectory = S_ISDIR(modeOf(directory, name, /*followsLink=*/true)) != 0,
            .isReadOnly = S_ISREG(mode) && (mode & S_IWUSR) == 0};
}

std::vector<FoundFile> filesOf(const std::u16string& pattern) {
    std::vector<FoundFile> files;
    const Directory directory = openDirectory(folderOf(pattern));
    if (!directory) {
        return files;
    }
    const std::size_t slash = pattern.rfind(u'\\');
    const std::u16string wanted =
        inCapitals(slash == std::u16string::npos ? pattern : pattern.substr(slash + 1));
    while (const dirent* const entry = ::readdir(directory.get())) {  // NOLINT: one thread each
        FoundFile file = entryOf(directory.get(), entry->d_name);
        if (fits(inCapitals(file.name), wanted)) {
            files.push_back(std::move(file));
        }
    }
    std::sort(files.begin(), files.end(), comesBefore);
    return files;
}

}  // namespace

/// All was read when the search began: what is deleted meanwhile changes nothing about the rest.
struct FolderSearch::State {
    std::vector<FoundFile> files;
    std::size_t position = 0;
};

FolderSearch::FolderSearch(const std::u16string& pattern) {
    std::vector<FoundFile> files = filesOf(pattern);
    if (!files.empty()) {
        state_ = std::make_unique<State>(State{std::move(files), 0});
    }
}

FolderSearch::~FolderSearch() = default;

std::optional<FoundFile> FolderSearch::next() {
    ++state_->position;
    return state_->position < state_->files.size() ? std::optional(state_->files[state_->position])
                                                   : std::nullopt;
}

bool FolderSearch::isComplete() const { return true; }

}  // namespace tarnix::platform
