#include "host/base/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace host {
namespace {

class Descriptor final : public FolderLock {
public:
    explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
    ~Descriptor() override { ::close(descriptor_); }

private:
    int descriptor_;
};

/// Locks an open file or folder, which is closed with the lock; null where neither can be done.
std::unique_ptr<FolderLock> lock(int descriptor, int operation) {
    if (descriptor < 0) {
        return nullptr;
    }
    auto held = std::make_unique<Descriptor>(descriptor);
    return ::flock(descriptor, operation) == 0 ? std::move(held) : nullptr;
}

}  // namespace

std::unique_ptr<FolderLock> FolderLock::take(const std::filesystem::path& folder) {
    const std::filesystem::path file = folder / "lock";
    return lock(::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600), LOCK_EX | LOCK_NB);
}

std::unique_ptr<FolderLock> FolderLock::waitToWrite(const std::filesystem::path& folder) {
    return lock(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC), LOCK_EX);
}

}  // namespace host
