#pragma once

#include "host/design/reading_limits.h"
#include "host/import/remembered_reader.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace host {

/// One reading of a STEP file through a cache.
///
/// An entry's key stands for all that the reader's responses depend on: its program, the libraries
/// that it runs with, its arguments, and the content of every file it reads. Which files a design
/// refers to is known only once it is read, so one of several files has two entries: the first says
/// that there are others, whereupon the tree is read to find them; the second is the reading.
class CachedReading {
public:
    /// `arguments` are those of the reader; the first is the file.
    CachedReading(ReadingCache cache, std::filesystem::path program,
                  std::vector<std::string> arguments, const ReadingLimits& limits);

    /// Throws `ReaderFailure`.
    [[nodiscard]] std::shared_ptr<RememberedReader> open() const;

    /// To be called with the files that were read, once they are known. Without any nothing is
    /// kept.
    void allowKeeping(RememberedReader& reader, const std::vector<std::filesystem::path>& files,
                      bool refersToMissing) const;

private:
    [[nodiscard]] std::string keyOf(const std::vector<std::filesystem::path>& files) const;
    [[nodiscard]] std::vector<std::filesystem::path> filesOfTree() const;

    ReadingCache cache_;
    std::filesystem::path program_;
    std::vector<std::string> arguments_;
    ReadingLimits limits_;
};

}  // namespace host
