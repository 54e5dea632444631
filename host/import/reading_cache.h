#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

/// What reading a STEP file found is kept, so that the next run of the same file builds no shapes.
///
/// An entry belongs to the content of a file and to the program that read it; remembered_reader.h
/// says what it holds. Entries that were not used for the longest time go when there are too many.
/// Each is written whole or not at all, and any may vanish at any time: processes share a cache
/// without waiting for each other.
namespace host {

struct ReadingCache {
    std::filesystem::path folder;                       ///< empty: nothing is kept
    std::uintmax_t limit = std::uintmax_t{256} << 20U;  ///< bytes of all entries together
};

/// The content of an entry, which counts as used now; nothing where there is none.
std::optional<std::string> findReading(const ReadingCache& cache, const std::string& key);

/// How many bytes an entry may have: a quarter of the limit, so that no file pushes out all others.
std::uintmax_t largestEntry(const ReadingCache& cache);

/// Adds or replaces an entry, then removes the oldest ones beyond the limit. One that is larger
/// than `largestEntry` is not kept. Where it fails, it is as if there were no cache.
void keepReading(const ReadingCache& cache, const std::string& key, const std::string& content);

/// What lies in a cache.
struct CacheSize {
    std::size_t entries = 0;
    std::uintmax_t bytes = 0;

    bool operator==(const CacheSize&) const = default;
};

CacheSize sizeOf(const ReadingCache& cache);

/// Removes all entries, and nothing else that lies in the folder. Returns what was removed.
CacheSize clear(const ReadingCache& cache);

}  // namespace host
