#include "tests/support/kept_file.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace test_support {

/// The file's attribute "append only", which binds the superuser as well.
struct KeptFile::Hold {
    int file = -1;
    int before = 0;
    bool isSet = false;
};

KeptFile::KeptFile(const std::filesystem::path& file) : hold_(std::make_unique<Hold>()) {
    hold_->file = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (hold_->file < 0 || ::ioctl(hold_->file, FS_IOC_GETFLAGS, &hold_->before) != 0) {
        return;
    }
    const int kept = hold_->before | FS_APPEND_FL;
    hold_->isSet = ::ioctl(hold_->file, FS_IOC_SETFLAGS, &kept) == 0;
}

KeptFile::~KeptFile() {
    if (hold_->isSet) {
        ::ioctl(hold_->file, FS_IOC_SETFLAGS, &hold_->before);
    }
    if (hold_->file >= 0) {
        ::close(hold_->file);
    }
}

bool KeptFile::isKept() const { return hold_->isSet; }

}  // namespace test_support
