#include "host/cloud/data_object.h"

#include "host/base/last_error.h"

#include <algorithm>

namespace host {

bool DataObject::activeProject(const core::Ptr<core::DataProject>& value) {
    if (closed<"activeProject">(*this)) return {};
    const auto found =
        std::find_if(state_.projects.begin(), state_.projects.end(),
                     [&value](const core::Ptr<DataProjectObject>& each) { return each == value; });
    if (found == state_.projects.end()) {
        return fail(core::BadApiCallError, "Data::activeProject: no such project");
    }
    state_.active = *found;
    return true;
}

core::Ptr<DataProjectObject> DataObject::project(const std::string& name) const {
    const auto found = std::find_if(
        state_.projects.begin(), state_.projects.end(),
        [&name](const core::Ptr<DataProjectObject>& each) { return each->state().name == name; });
    return found == state_.projects.end() ? nullptr : *found;
}

void DataObject::dispose() {
    for (const core::Ptr<DataProjectObject>& each : state_.projects) {
        each->dispose();
    }
    state_.projects.clear();
    state_.active = nullptr;
    invalidate();
}

}  // namespace host
