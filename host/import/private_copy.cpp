#include "host/import/private_copy.h"

#include "host/base/utf8_path.h"
#include "host/import/step_import.h"

#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <system_error>
#include <utility>
#include <vector>

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr const char* kPrefix = "standin-reading-";

/// The process that made a folder of this name; 0 for a folder of another kind.
pid_t makerOf(const std::string& name) {
    const std::string prefix = kPrefix;
    pid_t maker = 0;
    if (name.starts_with(prefix)) {
        std::from_chars(name.data() + prefix.size(), name.data() + name.size(), maker);
    }
    return maker;
}

void removeLeftovers(const fs::path& parent) {
    std::error_code error;
    std::vector<fs::path> left;
    for (fs::directory_iterator entry(parent, error), end; !error && entry != end;
         entry.increment(error)) {
        const pid_t maker = makerOf(entry->path().filename().string());
        if (maker > 0 && ::kill(maker, 0) != 0 && errno == ESRCH) {
            left.push_back(entry->path());
        }
    }
    for (const fs::path& folder : left) {
        fs::remove_all(folder, error);
    }
}

fs::path makeFolder(const std::string& shown) {
    std::error_code error;
    const fs::path parent = fs::temp_directory_path(error);
    removeLeftovers(parent);
    std::string name = (parent / (kPrefix + std::to_string(::getpid()) + "-XXXXXX")).string();
    if (error || ::mkdtemp(name.data()) == nullptr) {
        throw ImportError(shown + ": cannot be copied into " + toUtf8(parent) + " (" +
                          std::generic_category().message(errno) +
                          "); set TMPDIR to a folder that may be written to");
    }
    return name;
}

}  // namespace

PrivateCopy::PrivateCopy(const std::string& name, std::string shown, std::uintmax_t limit)
    : shown_(std::move(shown)), left_(limit), path_(makeFolder(shown_) / name) {
    stream_.open(path_, std::ios::binary);
}

PrivateCopy::~PrivateCopy() {
    std::error_code ignored;
    fs::remove_all(path_.parent_path(), ignored);
}

void PrivateCopy::append(const char* bytes, std::size_t count) {
    if (count > left_) {
        throw ImportError(shown_ +
                          ": is too large for the memory that may be used; open a part of the "
                          "assembly, or increase the limit");
    }
    left_ -= count;
    stream_.write(bytes, static_cast<std::streamsize>(count));
}

void PrivateCopy::finish() {
    stream_.close();
    if (!stream_) {
        throw ImportError(shown_ + ": cannot be copied into " + toUtf8(path_.parent_path()) +
                          "; is the disk full?");
    }
}

}  // namespace host
