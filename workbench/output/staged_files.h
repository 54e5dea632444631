#pragma once

#include "host/base/folder_lock.h"
#include "host/design/atomic_file.h"
#include "host/design/design_data.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// The content of a file at one moment; none where there is no file.
using Fingerprint = std::optional<std::size_t>;

Fingerprint fingerprintOf(const std::filesystem::path& file);

/// Files that are written beside their names and take these together at the end, when nothing else
/// can fail any more. Without `commit` all is as it was. Each function throws a `Failure` where it
/// fails.
class StagedFiles {
public:
    StagedFiles() = default;
    StagedFiles(const StagedFiles&) = delete;
    StagedFiles& operator=(const StagedFiles&) = delete;
    ~StagedFiles();

    /// Makes a missing folder, which goes again with files that are not committed.
    void add(const std::filesystem::path& file, std::string_view content);

    /// A design file. One is not replaced that is no longer as it was `before`: what another
    /// program saved there would be lost. Makes a missing folder as `add` does.
    void addDesign(const std::filesystem::path& file, const host::DesignData& design,
                   const Fingerprint& before);

    /// Throws where a design file is no longer as it was. From here to the commit other programs
    /// that save in the same folder wait. To be called before anything is printed: a result that is
    /// not kept must not be shown.
    void check();

    /// Checks first, unless that was done.
    void commit();

private:
    struct File {
        std::filesystem::path path;
        host::AtomicFile content;
        std::optional<Fingerprint> before;  ///< nothing where it does not matter
    };

    void makeFolderOf(const std::filesystem::path& file);

    std::vector<File> files_;
    std::vector<std::unique_ptr<host::FolderLock>> locks_;
    std::vector<std::filesystem::path> madeFolders_;
};

}  // namespace workbench
