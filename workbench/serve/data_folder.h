#pragma once

#include "workbench/serve/json.h"

#include <filesystem>
#include <string>

namespace workbench::serve {

/// The user's data, as pages see it: names of files from one folder on, with "/" between folders.
/// What leads out of it is not there; links count as what they lead to. Each function throws a
/// `ProtocolError` for what a name cannot be or is not.
class DataFolder {
public:
    explicit DataFolder(std::filesystem::path folder) : folder_(std::move(folder)) {}

    [[nodiscard]] const std::filesystem::path& path() const { return folder_; }

    /// What a folder holds, as docs/protocol.md lists it; an empty name is the data folder.
    [[nodiscard]] Json list(const std::string& name) const;

    /// A folder that is there.
    [[nodiscard]] std::filesystem::path existingFolder(const std::string& name) const;

    /// The name of a folder; empty for the data folder, and for one that is not in it.
    [[nodiscard]] std::string folderName(const std::filesystem::path& folder) const;

    /// A file that is there.
    [[nodiscard]] std::filesystem::path existing(const std::string& name) const;

    /// A file to write, in a folder that is there.
    [[nodiscard]] std::filesystem::path writable(const std::string& name) const;

private:
    [[nodiscard]] std::filesystem::path resolved(const std::string& name) const;

    std::filesystem::path folder_;
};

}  // namespace workbench::serve
