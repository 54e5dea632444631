#include "host/import/reading_cache.h"

#include "host/base/utf8_path.h"
#include "host/design/atomic_file.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iterator>
#include <string_view>
#include <system_error>
#include <vector>

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kEnding = ".reading";

struct Entry {
    fs::path file;
    std::uintmax_t bytes = 0;
    fs::file_time_type used;
};

/// Whether a name is that of an entry, or of one that is still being written.
bool isEntryName(const std::string& name, bool& isUnfinished) {
    const std::size_t key = std::min(name.find_first_not_of("0123456789abcdef"), name.size());
    const std::string_view rest = std::string_view(name).substr(key);
    isUnfinished = rest != kEnding;
    return key > 0 && rest.starts_with(kEnding);
}

/// The entries, and what processes that were killed left of theirs.
std::vector<Entry> entriesOf(const ReadingCache& cache, std::chrono::seconds unfinishedAge) {
    std::vector<Entry> entries;
    std::error_code error;
    for (fs::directory_iterator each(cache.folder, error), end; !error && each != end;
         each.increment(error)) {
        bool isUnfinished = false;
        std::error_code gone;
        const fs::file_time_type used = each->last_write_time(gone);
        const std::uintmax_t bytes = each->file_size(gone);
        if (!gone && isEntryName(toUtf8(each->path().filename()), isUnfinished) &&
            (!isUnfinished || fs::file_time_type::clock::now() - used >= unfinishedAge)) {
            entries.push_back({each->path(), bytes, used});
        }
    }
    return entries;
}

CacheSize total(const std::vector<Entry>& entries) {
    CacheSize size{.entries = entries.size(), .bytes = 0};
    for (const Entry& entry : entries) {
        size.bytes += entry.bytes;
    }
    return size;
}

void removeOldest(const ReadingCache& cache) {
    std::vector<Entry> entries = entriesOf(cache, std::chrono::hours(1));
    std::ranges::sort(entries, {}, &Entry::used);
    std::uintmax_t bytes = total(entries).bytes;
    for (const Entry& entry : entries) {
        if (bytes <= cache.limit) {
            return;
        }
        std::error_code ignored;
        fs::remove(entry.file, ignored);
        bytes -= entry.bytes;
    }
}

fs::path fileOf(const ReadingCache& cache, const std::string& key) {
    return cache.folder / (key + std::string(kEnding));
}

/// Names of parts may be confidential: only the user may look into the folder.
void makeFolder(const fs::path& folder) {
    std::error_code error;
    if (fs::create_directories(folder, error)) {
        fs::permissions(folder, fs::perms::owner_all, error);
    }
}

}  // namespace

std::optional<std::string> findReading(const ReadingCache& cache, const std::string& key) {
    if (cache.folder.empty()) {
        return std::nullopt;
    }
    const fs::path file = fileOf(cache, key);
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        return std::nullopt;
    }
    std::error_code ignored;
    fs::last_write_time(file, fs::file_time_type::clock::now(), ignored);
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

std::uintmax_t largestEntry(const ReadingCache& cache) {
    constexpr std::uintmax_t kLeastEntries = 4;
    return cache.limit / kLeastEntries;
}

void keepReading(const ReadingCache& cache, const std::string& key, const std::string& content) {
    if (cache.folder.empty() || content.size() > largestEntry(cache)) {
        return;
    }
    try {
        makeFolder(cache.folder);
        writeFileAtomically(fileOf(cache, key), content);
        removeOldest(cache);
    } catch (const std::system_error&) {
        // A full disk, or a folder that may not be written to: the next run reads the file again.
    }
}

CacheSize sizeOf(const ReadingCache& cache) {
    return total(entriesOf(cache, std::chrono::seconds(0)));
}

CacheSize clear(const ReadingCache& cache) {
    CacheSize removed;
    for (const Entry& entry : entriesOf(cache, std::chrono::seconds(0))) {
        std::error_code error;
        if (fs::remove(entry.file, error)) {
            ++removed.entries;
            removed.bytes += entry.bytes;
        }
    }
    return removed;
}

}  // namespace host
