#pragma once

#include "host/base/object.h"
#include "host/cloud/data_project_object.h"

#include <Core/Data.h>

#include <string>
#include <utility>
#include <vector>

namespace host {

/// All projects of the user.
class DataObject final : public Object<core::Data> {
public:
    explicit DataObject(std::vector<core::Ptr<DataProjectObject>> projects)
        : state_{.projects = std::move(projects), .active = nullptr} {
        state_.active = state_.projects.empty() ? nullptr : state_.projects.front();
    }

    [[nodiscard]] core::Ptr<core::DataProject> activeProject() const override {
        return get<"activeProject">(state_.active);
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
