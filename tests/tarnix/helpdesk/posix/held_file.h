#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <thread>

namespace test_support {

/// A file that cannot be opened until it is released. A lease on the file, which not
/// every file system has.
class HeldFile {
public:
    explicit HeldFile(const std::filesystem::path& file)
        : descriptor_(::open(file.c_str(), O_RDWR | O_CLOEXEC)) {
        // The system reports the waiting by a signal, which is ignored unless a handler is set.
        ::fcntl(descriptor_, F_SETSIG, SIGURG);
        isHeld_ = ::fcntl(descriptor_, F_SETLEASE, F_WRLCK) == 0;
    }
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;
    ~HeldFile() {
        detach();
        ::close(descriptor_);
    }

    /// False where the file system does not do that.
    [[nodiscard]] bool isHeld() const { return isHeld_; }

    /// Waits until a process waits to open the file; false if none does for half a minute.
    [[nodiscard]] bool waitUntilAsked() const {
        for (int i = 0; i < 600 && ::fcntl(descriptor_, F_GETLEASE) == F_WRLCK; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        return ::fcntl(descriptor_, F_GETLEASE) != F_WRLCK;
    }

    void detach() const { ::fcntl(descriptor_, F_SETLEASE, F_UNLCK); }

private:
    int descriptor_;
    bool isHeld_ = false;
};

}  // namespace test_support
