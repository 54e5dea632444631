#include "tests/support/kept_file.h"

#include <windows.h>

namespace test_support {

/// The file held open by one who shares it for reading and writing, but not for deletion.
struct KeptFile::Hold {
    HANDLE file = INVALID_HANDLE_VALUE;
};

KeptFile::KeptFile(const std::filesystem::path& file) : hold_(std::make_unique<Hold>()) {
    hold_->file = ::CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                nullptr, OPEN_EXISTING, 0, nullptr);
}

KeptFile::~KeptFile() {
    if (isKept()) {
        ::CloseHandle(hold_->file);
    }
}

bool KeptFile::isKept() const { return hold_->file != INVALID_HANDLE_VALUE; }

}  // namespace test_support
