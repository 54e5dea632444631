#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace tarnix::platform {

/// Writes a file of these bytes, replacing one that is there. False if it failed.
bool writeBytes(const std::string& path, std::span<const std::uint8_t> bytes);

/// An archive, opened by the system as a folder that files can be copied into.
///
/// Paths are in Windows terms and the system's 8-bit code page. COM must be ready on the thread for
/// as long as the object lives.
class CompressedFolder {
public:
    explicit CompressedFolder(const std::string& archivePath);
    CompressedFolder(const CompressedFolder&) = delete;
    CompressedFolder& operator=(const CompressedFolder&) = delete;
    ~CompressedFolder();

    /// False where the system has no such folders, or the file is not one.
    explicit operator bool() const { return state_ != nullptr; }

    /// Has the system copy what a folder holds into the archive, without a dialog.
    /// The work goes on in another thread and outlives this object; a process that ends waits for
    /// it. Failures are not reported.
    void copyHere(const std::string& folder) const;

private:
    struct State;

    std::unique_ptr<State> state_;
};

}  // namespace tarnix::platform
