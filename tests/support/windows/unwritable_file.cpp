#include "tests/support/unwritable_file.h"

#include <windows.h>

namespace test_support {

/// The file held open by one who shares it for reading alone.
struct UnwritableFile::Hold {
    HANDLE file = INVALID_HANDLE_VALUE;
};

UnwritableFile::UnwritableFile(const std::filesystem::path& file)
    : hold_(std::make_unique<Hold>()) {
    hold_->file = ::CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                0, nullptr);
}

UnwritableFile::~UnwritableFile() {
    if (hold_->file != INVALID_HANDLE_VALUE) {
        ::CloseHandle(hold_->file);
    }
}

}  // namespace test_support
