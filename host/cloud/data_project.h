#pragma once

#include "host/base/object.h"
#include "host/cloud/data_folder.h"

#include <Core/Data.h>

#include <filesystem>
#include <string>
#include <vector>

namespace host {

/// A project: a folder of the disk.
class DataProjectObject final : public Object<adsk::core::DataProject> {
public:
    explicit DataProjectObject(const std::filesystem::path& folder);

    [[nodiscard]] std::string id() const override;
    [[nodiscard]] std::string name() const override;
    bool name(const std::string& value) override;
    [[nodiscard]] adsk::core::Ptr<adsk::core::DataFolder> rootFolder() const override;

    /// @name For the host itself
    /// @{
    [[nodiscard]] const std::string& title() const { return name_; }
    [[nodiscard]] DataFolderObject& root() const { return *root_; }

    /// The id of a file in it, which no other file of the user has.
    [[nodiscard]] std::string idOfFile(const std::filesystem::path& path) const;

    void close();
    /// @}

private:
    std::string name_;
    adsk::core::Ptr<DataFolderObject> root_;
};

/// All projects of the user.
class DataObject final : public Object<adsk::core::Data> {
public:
    explicit DataObject(std::vector<adsk::core::Ptr<DataProjectObject>> projects)
        : projects_(std::move(projects)),
          active_(projects_.empty() ? nullptr : projects_.front()) {}

    [[nodiscard]] adsk::core::Ptr<adsk::core::DataProject> activeProject() const override;
    bool activeProject(const adsk::core::Ptr<adsk::core::DataProject>& value) override;

    /// @name For the host itself
    /// @{

    /// Null for a name that no project has.
    [[nodiscard]] adsk::core::Ptr<DataProjectObject> project(const std::string& name) const;

    [[nodiscard]] const adsk::core::Ptr<DataProjectObject>& active() const { return active_; }
    void activate(const adsk::core::Ptr<DataProjectObject>& project) { active_ = project; }
    void close();
    /// @}

private:
    std::vector<adsk::core::Ptr<DataProjectObject>> projects_;
    adsk::core::Ptr<DataProjectObject> active_;
};

}  // namespace host
