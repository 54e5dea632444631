#pragma once

#include "host/base/api_names.h"

#include <Core/Data.h>
#include <Core/Document.h>

#include <filesystem>
#include <memory>
#include <string>

/// The user's data: a local folder stands in for the vendor's storage.
///
/// Each folder directly in it is a project, and what lies in that are the project's folders and
/// files. A file is called as on the disk, without its ending. The disk is looked at whenever a
/// folder is asked for what it holds, so what is put there meanwhile is found. Links to folders are
/// not followed, and names that begin with "." are skipped.
namespace host {

/// When the host learns which file a referenced document was saved to.
enum class ReferencedFiles {
    KnownAtOnce,
    KnownWhenListed,  ///< not before a module asks the folder of the file for its files
};

struct UserDataSetup {
    std::filesystem::path folder;
    std::string activeProject;  ///< by its name; empty for the first
    ReferencedFiles references = ReferencedFiles::KnownAtOnce;
};

class DataObject;

/// Belongs to the session. What a module holds of it is disposed of with it.
class UserData {
public:
    /// Throws `std::invalid_argument` for a path that is not a directory, or a project that is not
    /// there.
    explicit UserData(UserDataSetup setup);
    UserData(const UserData&) = delete;
    UserData& operator=(const UserData&) = delete;
    ~UserData();

    /// What the public API shows of it.
    [[nodiscard]] core::Ptr<core::Data> api() const;

    /// The data file of a file on the disk, null for one that lies in no project.
    [[nodiscard]] core::Ptr<core::DataFile> fileAt(const std::filesystem::path& path) const;

    /// Ties a document that was opened from or saved to a file on the disk to its data file, and
    /// the documents that it refers to to the files of their names: the first in the active
    /// project, folders before files, if there is one. Nothing happens for a file in no project.
    void tie(const core::Ptr<core::Document>& document, const std::filesystem::path& path) const;

private:
    UserDataSetup setup_;
    core::Ptr<DataObject> data_;
};

}  // namespace host
