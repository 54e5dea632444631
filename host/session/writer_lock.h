#pragma once

#include <filesystem>
#include <memory>

namespace host {

/// While it lives, other processes wait that take it for the same folder: between looking at a file
/// there and replacing it, none of them can come.
///
/// It leaves nothing in the folder, and ends with its process. Where the system has no such lock
/// for that folder, nothing waits.
class WriterLock {
public:
    static std::unique_ptr<WriterLock> take(const std::filesystem::path& folder);

    WriterLock() = default;
    WriterLock(const WriterLock&) = delete;
    WriterLock& operator=(const WriterLock&) = delete;
    virtual ~WriterLock() = default;
};

}  // namespace host
