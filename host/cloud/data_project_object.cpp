#include "host/cloud/data_project_object.h"

#include "host/base/last_error.h"
#include "host/base/utf8_path.h"

#include <algorithm>

namespace host {

DataProjectObject::DataProjectObject(const std::filesystem::path& folder)
    : state_{.name = toUtf8(folder.filename()),
             .root = make<DataFolderObject>(*this, nullptr, folder)} {}

std::string DataProjectObject::id() const {
    if (closed<"DataProject::id">(*this)) return {};
    return "urn:standin:project:" + state_.name;
}

bool DataProjectObject::name(const std::string& /*value*/) {
    if (closed<"DataProject::name">(*this)) return {};
    return notImplemented("DataProject::name: to rename a project");
}

std::string DataProjectObject::idOfFile(const std::filesystem::path& path) const {
    const std::filesystem::path inside = path.lexically_relative(state_.root->path());
    const std::u8string text = inside.generic_u8string();
    return "urn:standin:file:" + state_.name + "/" + std::string(text.begin(), text.end());
}

void DataProjectObject::dispose() {
    state_.root->dispose();
    invalidate();
}

bool DataObject::activeProject(const core::Ptr<core::DataProject>& value) {
    if (closed<"Data::activeProject">(*this)) return {};
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
