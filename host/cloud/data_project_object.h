#pragma once

#include "host/base/object.h"
#include "host/cloud/data_folder_object.h"

#include <Core/Data.h>

#include <filesystem>
#include <string>
#include <vector>

namespace host {

/// A project: a folder of the disk.
class DataProjectObject final : public Object<core::DataProject> {
public:
    explicit DataProjectObject(const std::filesystem::path& folder);

    [[nodiscard]] std::string id() const override;
    [[nodiscard]] std::string name() const override {
        return get<"DataProject::name">(state_.name);
    }
    bool name(const std::string& value) override;
    [[nodiscard]] core::Ptr<core::DataFolder> rootFolder() const override {
        return get<"DataProject::rootFolder">(state_.root);
    }

    /// @name For the host itself
    /// @{
    struct State {
        std::string name;
        core::Ptr<DataFolderObject> root;
    };
    [[nodiscard]] const State& state() const { return state_; }

    /// The id of a file in it, which no other file of the user has.
    [[nodiscard]] std::string idOfFile(const std::filesystem::path& path) const;

    void dispose();
    /// @}

private:
    State state_;
};

/// All projects of the user.
class DataObject final : public Object<core::Data> {
public:
    explicit DataObject(std::vector<core::Ptr<DataProjectObject>> projects)
        : state_{.projects = std::move(projects), .active = nullptr} {
        state_.active = state_.projects.empty() ? nullptr : state_.projects.front();
    }

    [[nodiscard]] core::Ptr<core::DataProject> activeProject() const override {
        return get<"Data::activeProject">(state_.active);
    }
    bool activeProject(const core::Ptr<core::DataProject>& value) override;

    /// @name For the host itself
    /// @{
    struct State {
        std::vector<core::Ptr<DataProjectObject>> projects;
        core::Ptr<DataProjectObject> active;
    };
    [[nodiscard]] const State& state() const { return state_; }

    /// Null for a name that no project has.
    [[nodiscard]] core::Ptr<DataProjectObject> project(const std::string& name) const;

    void activate(const core::Ptr<DataProjectObject>& project) { state_.active = project; }
    void dispose();
    /// @}

private:
    State state_;
};

}  // namespace host
