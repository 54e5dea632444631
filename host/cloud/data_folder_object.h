#pragma once

#include "host/base/object.h"
#include "host/cloud/data_file_object.h"

#include <Core/Data.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace host {

class DataProjectObject;

/// A folder of a project, and what was found in it so far.
///
/// It holds what lies in it; that points back to it, until it is closed.
class DataFolderObject final : public Object<core::DataFolder> {
public:
    /// `parent` is null for the root folder of a project.
    DataFolderObject(DataProjectObject& project, DataFolderObject* parent,
                     std::filesystem::path path);

    [[nodiscard]] std::string name() const override;
    bool name(const std::string& value) override;
    [[nodiscard]] bool isRoot() const override;
    [[nodiscard]] core::Ptr<core::DataFolder> parentFolder() const override;
    [[nodiscard]] core::Ptr<core::DataFolders> dataFolders() const override;
    [[nodiscard]] core::Ptr<core::DataFiles> dataFiles() const override;
    core::Ptr<core::DataFileFuture> uploadFile(const std::string& filename) override;

    /// @name For the host itself
    /// @{
    [[nodiscard]] DataProjectObject& project() const { return *project_; }
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// Whether a module has asked for its files.
    [[nodiscard]] bool isListed() const { return isListed_; }

    /// Looks at the disk; what was removed from it is disposed of.
    void refresh();

    [[nodiscard]] core::Ptr<DataFolderObject> folder(const std::filesystem::path& name) const;
    [[nodiscard]] core::Ptr<DataFileObject> file(const std::filesystem::path& name) const;

    /// The first file of a name here or below, folders before files; null for none.
    [[nodiscard]] core::Ptr<DataFileObject> findByName(const std::string& name);

    /// A file in it was renamed on the disk.
    void fileRenamed(const std::filesystem::path& from, const std::filesystem::path& to);

    /// It is at another place of the disk, with all that is in it.
    void moveTo(const std::filesystem::path& path);

    /// Disposes of all that is in it, and of itself.
    void dispose();
    /// @}

private:
    DataProjectObject* project_;
    DataFolderObject* parent_;
    std::filesystem::path path_;
    std::map<std::filesystem::path, core::Ptr<DataFolderObject>> folders_;
    std::map<std::filesystem::path, core::Ptr<DataFileObject>> files_;
    mutable bool isListed_ = false;
};

}  // namespace host
