#pragma once

#include "host/base/object.h"

#include <Core/Data.h>
#include <Core/Document.h>

#include <filesystem>
#include <string>
#include <vector>

namespace host {

class DataFolderObject;

/// A file of a project.
class DataFileObject final : public Object<adsk::core::DataFile> {
public:
    DataFileObject(DataFolderObject& folder, const std::filesystem::path& path, std::string id);

    [[nodiscard]] std::string id() const override;
    [[nodiscard]] std::string name() const override;
    bool name(const std::string& value) override;
    [[nodiscard]] adsk::core::Ptr<adsk::core::DataFolder> parentFolder() const override;
    [[nodiscard]] adsk::core::Ptr<adsk::core::DataProject> parentProject() const override;

    /// @name For the host itself
    /// @{
    [[nodiscard]] const std::string& title() const { return name_; }
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// When it can be opened, by the clock of the host: at once unless it was just uploaded.
    [[nodiscard]] double convertedAt() const { return convertedAt_; }
    void convertedAt(double seconds) { convertedAt_ = seconds; }

    [[nodiscard]] const DataFolderObject* folder() const { return folder_; }

    /// Has a document learn of this file when the file's folder is listed.
    void await(const adsk::core::Ptr<adsk::core::Document>& document);

    /// Tells the documents that wait for it.
    void becomeKnown();

    /// Its folder is gone, or it is itself.
    void close();
    /// @}

private:
    DataFolderObject* folder_;
    std::filesystem::path path_;
    double convertedAt_ = 0;
    std::string name_;
    std::string id_;
    std::vector<adsk::core::Ptr<adsk::core::Document>> waiting_;
};

}  // namespace host
