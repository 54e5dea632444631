#include "host/session/folder_lock.h"

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

}  // namespace

std::unique_ptr<FolderLock> FolderLock::take(const std::filesystem::path& folder) {
    const std::filesystem::path file = folder / "lock";
    const int descriptor = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (descriptor < 0) {
        return nullptr;
    }
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        ::close(descriptor);
        return nullptr;
    }
    return std::make_unique<Descriptor>(descriptor);
}

}  // namespace host
