#include "host/session/writer_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace host {
namespace {

class LockedFolder final : public WriterLock {
public:
    explicit LockedFolder(int descriptor) : descriptor_(descriptor) {}
    ~LockedFolder() override { ::close(descriptor_); }

private:
    int descriptor_;
};

}  // namespace

std::unique_ptr<WriterLock> WriterLock::take(const std::filesystem::path& folder) {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) {
        return nullptr;
    }
    auto lock = std::make_unique<LockedFolder>(descriptor);
    return ::flock(descriptor, LOCK_EX) == 0 ? std::move(lock) : nullptr;
}

}  // namespace host
