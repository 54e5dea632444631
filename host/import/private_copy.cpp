#include "host/import/private_copy.h"

#include "host/base/utf8_path.h"
#include "host/import/step_import.h"

#include <system_error>
#include <utility>

namespace host {
namespace {

namespace fs = std::filesystem;

const FolderKind kCopies = {.prefix = "standin-reading-", .suffix = ""};

std::unique_ptr<OwnedFolder> makeCopyFolder(const std::string& shown) {
    std::error_code error;
    const fs::path parent = fs::temp_directory_path(error);
    std::unique_ptr<OwnedFolder> folder;
    if (!error) {
        folder = OwnedFolder::make(parent, kCopies, error);
    }
    if (!folder) {
        throw ImportError(shown + ": cannot be copied into " + toUtf8(parent) + " (" +
                          error.message() + "); set TMPDIR to a folder that may be written to");
    }
    return folder;
}

}  // namespace

PrivateCopy::PrivateCopy(const std::string& name, std::string shown, std::uintmax_t limit)
    : shown_(std::move(shown)),
      left_(limit),
      folder_(makeCopyFolder(shown_)),
      path_(folder_->path() / name) {
    stream_.open(path_, std::ios::binary);
}

void PrivateCopy::append(const char* bytes, std::size_t count) {
    if (count > left_) {
        throw ImportError(shown_ +
                              ": is too large for the memory that may be used; open a part of the "
                              "assembly, or increase the limit",
                          ReadingLimit::Megabytes);
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
