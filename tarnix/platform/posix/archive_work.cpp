#include "tarnix/platform/posix/archive_work.h"

#include <zip.h>

#include <filesystem>
#include <future>
#include <memory>
#include <utility>
#include <vector>

namespace tarnix::platform {
namespace {

namespace fs = std::filesystem;

/// An archive that is open; unless it is closed before, nothing of what was done stays.
using Archive = std::unique_ptr<zip_t, void (*)(zip_t*)>;

Archive openArchive(const std::string& path) {
    return {::zip_open(path.c_str(), 0, nullptr), ::zip_discard};
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

/// Notes that a file is to become an entry; it is read when the archive is closed.
void addFile(zip_t* archive, const fs::path& file, const fs::path& folder) {
    zip_source_t* const source = ::zip_source_file(archive, file.c_str(), 0, 0);
    const std::string name = file.lexically_relative(folder).string();
    if (source != nullptr &&
        ::zip_file_add(archive, name.c_str(), source, ZIP_FL_OVERWRITE | ZIP_FL_ENC_GUESS) < 0) {
        ::zip_source_free(source);
    }
}

void fillArchive(const fs::path& path, const fs::path& folder) {
    Archive archive = openArchive(path.string());
    if (!archive) {
        return;
    }
    for (const fs::path& file : filesBelow(folder)) {
        std::error_code unknown;
        if (!fs::equivalent(file, path, unknown)) {
            addFile(archive.get(), file, folder);
        }
    }
    // A failure leaves the archive as it was, and it is still open then.
    if (::zip_close(archive.get()) == 0) {
        static_cast<void>(archive.release());
    }
}

/// The works that were started, each of which begins when the one before has ended.
class Works {
public:
    Works() = default;
    Works(const Works&) = delete;
    Works& operator=(const Works&) = delete;
    ~Works() { finish(); }

    void add(fs::path archive, fs::path folder) {
        last_ =
            std::async(std::launch::async, [before = std::move(last_), archive = std::move(archive),
                                            folder = std::move(folder)]() mutable {
                if (before.valid()) {
                    before.wait();
                }
                fillArchive(archive, folder);
            });
    }

    void finish() {
        if (last_.valid()) {
            last_.wait();
        }
    }

private:
    std::future<void> last_;
};

/// Has libzip do once, on this thread, what it does on the other at the beginning of its writing:
/// make a temporary file, whose name comes from a library with a clean-up of its own. That is then
/// registered before the waiting for the works, and so comes after it at the end of the process.
/// Yields whether that file could be made, which does not matter.
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

bool isArchive(const std::string& path) { return openArchive(path) != nullptr; }

void fillArchiveBeside(const std::string& archive, const std::string& folder) {
    [[maybe_unused]] static const bool isStarted = startRandomNames(archive);
    works().add(archive, folder);
}

void finishArchives() { works().finish(); }

}  // namespace tarnix::platform
