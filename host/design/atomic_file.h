#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

namespace host {

/// A file that is about to be written or replaced: its content is on the disk already, in a new
/// file beside it, which takes the name with `commit` and is removed without it.
///
/// The name refers to the old content or the new one, whole, also after a crash. What a process
/// that was killed left beside a file is removed when that file is written again. A link is
/// followed, and a file that is replaced hands its permissions on. What is there and is no file is
/// not replaced.
class AtomicFile {
public:
    /// Throws `std::system_error` where the content cannot be written, with nothing left.
    AtomicFile(const std::filesystem::path& path, std::string_view content);
    AtomicFile(AtomicFile&& other) noexcept;
    ~AtomicFile();

    /// Throws `std::system_error` where that fails; the old file is then kept.
    void commit();

private:
    std::filesystem::path path_;
    std::filesystem::path created_;  ///< empty once it has taken the name
    std::intptr_t hold_;             ///< shows other processes that this one still needs the file
};

/// Writes a file as a whole: all of the above at once.
void writeFileAtomically(const std::filesystem::path& path, std::string_view content);

}  // namespace host
