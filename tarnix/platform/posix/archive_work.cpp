#include "tarnix/platform/posix/archive_work.h"

#include <unistd.h>
#include <zip.h>

#include <atomic>
#include <filesystem>
#include <future>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tarnix::platform {
namespace {

namespace fs = std::filesystem;

/// An archive that is open; unless it is closed before, nothing of what was done stays.
using Archive = std::unique_ptr<zip_t, void (*)(zip_t*)>;

Archive openArchive(const std::string& path, int flags) {
    return {::zip_open(path.c_str(), flags, nullptr), ::zip_discard};
}

/// The files below a folder, links left out. What cannot be read is left out, too.
std::vector<fs::path> filesBelow(const fs::path& folder) {
    std::vector<fs::path> files;
    std::error_code failure;
    fs::recursive_directory_iterator entry(folder, fs::directory_options::skip_permission_denied,
                                           failure);
    while (!failure && entry != fs::recursive_directory_iterator()) {
        std::error_code unknown;
        if (fs::is_regular_file(entry->symlink_status(unknown))) {
            files.push_back(entry->path());
        }
        entry.increment(failure);
    }
    return files;
}

/// Registers a file as an entry; it is read when the archive is closed.
void addFile(zip_t* archive, const fs::path& file, const fs::path& folder) {
    zip_source_t* const source = ::zip_source_file(archive, file.c_str(), 0, 0);
    const std::string name = file.lexically_relative(folder).string();
    if (source != nullptr &&
        ::zip_file_add(archive, name.c_str(), source, ZIP_FL_OVERWRITE | ZIP_FL_ENC_GUESS) < 0) {
        ::zip_source_free(source);
    }
}

void addFiles(zip_t* archive, const fs::path& path, const fs::path& folder) {
    for (const fs::path& file : filesBelow(folder)) {
        std::error_code unknown;
        if (!fs::equivalent(file, path, unknown)) {
            addFile(archive, file, folder);
        }
    }
}

/// One work. Another for the same archive makes it outdated, which any thread may report to it.
struct Work {
    fs::path archive;
    fs::path folder;
    std::atomic<bool> isOutdated = false;
};

/// Packs the folder of a work into a new file; false if it has no files, or that failed.
bool pack(const Work& work, const std::string& file) {
    // What an earlier process of this number left would be added to.
    Archive archive = openArchive(file, ZIP_CREATE | ZIP_TRUNCATE);
    if (!archive) {
        return false;
    }
    addFiles(archive.get(), work.archive, work.folder);
    if (::zip_get_num_entries(archive.get(), 0) == 0 || ::zip_close(archive.get()) != 0) {
        return false;
    }
    // Closed means gone.
    static_cast<void>(archive.release());
    return true;
}

/// Puts the packed file in the place of the archive, which keeps its permissions. One that is not
/// there any more does not come back.
bool takePlace(const Work& work, const std::string& file) {
    std::error_code failure;
    const fs::file_status before = fs::status(work.archive, failure);
    if (work.isOutdated || !fs::is_regular_file(before)) {
        return false;
    }
    fs::permissions(file, before.permissions(), failure);
    fs::rename(file, work.archive, failure);
    return !failure;
}

void fillArchive(const Work& work) {
    const std::string file = work.archive.string() + ".new-" + std::to_string(::getpid());
    if (!pack(work, file) || !takePlace(work, file)) {
        std::error_code ignored;
        fs::remove(file, ignored);
    }
}

/// The works that were started, each of which begins when the one before has ended.
class Works {
public:
    Works() = default;
    Works(const Works&) = delete;
    Works& operator=(const Works&) = delete;
    ~Works() { finish(); }

    void add(const std::string& archive, const std::string& folder) {
        const auto work = std::make_shared<Work>();
        work->archive = archive;
        work->folder = folder;
        std::shared_ptr<Work>& newest = newest_[archive];
        if (newest) {
            newest->isOutdated = true;
        }
        newest = work;
        last_ = std::async(std::launch::async, [before = std::move(last_), work] {
            if (before.valid()) {
                before.wait();
            }
            fillArchive(*work);
        });
    }

    void finish() {
        if (last_.valid()) {
            last_.wait();
        }
    }

private:
    std::future<void> last_;
    std::map<std::string, std::shared_ptr<Work>> newest_;  ///< by archive
};

/// Has libzip do once, on this thread, what it does on the other at the beginning of its writing:
/// make a temporary file, whose name comes from a library with a clean-up of its own. That is then
/// registered before the waiting for the works, and so comes after it at the end of the process.
/// Returns whether that file could be made, which does not matter.
bool startRandomNames(const std::string& archive) {
    zip_error_t ignored;
    ::zip_error_init(&ignored);
    zip_source_t* const source = ::zip_source_file_create(archive.c_str(), 0, 0, &ignored);
    const bool isMade = source != nullptr && ::zip_source_begin_write(source) == 0;
    if (isMade) {
        ::zip_source_rollback_write(source);
    }
    ::zip_source_free(source);
    ::zip_error_fini(&ignored);
    return isMade;
}

Works& works() {
    static Works instance;
    return instance;
}

}  // namespace

bool isArchive(const std::string& path) { return openArchive(path, ZIP_RDONLY) != nullptr; }

void fillArchiveBeside(const std::string& archive, const std::string& folder) {
    [[maybe_unused]] static const bool isStarted = startRandomNames(archive);
    works().add(archive, folder);
}

void finishArchives() { works().finish(); }

}  // namespace tarnix::platform
