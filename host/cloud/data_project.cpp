#include "host/cloud/data_project.h"

#include "host/base/last_error.h"
#include "host/base/utf8_path.h"

#include <algorithm>

namespace host {

using adsk::core::DataFolder;
using adsk::core::DataProject;
using adsk::core::Ptr;

DataProjectObject::DataProjectObject(const std::filesystem::path& folder)
    : name_(toUtf8(folder.filename())), root_(make<DataFolderObject>(*this, nullptr, folder)) {}

std::string DataProjectObject::id() const {
    if (closed<"DataProject::id">(*this)) return {};
    return "urn:standin:project:" + name_;
}

std::string DataProjectObject::name() const {
    if (closed<"DataProject::name">(*this)) return {};
    return name_;
}

bool DataProjectObject::name(const std::string& /*value*/) {
    if (closed<"DataProject::name">(*this)) return {};
    return notImplemented("DataProject::name: to rename a project");
}

Ptr<DataFolder> DataProjectObject::rootFolder() const {
    if (closed<"DataProject::rootFolder">(*this)) return {};
    return root_;
}

std::string DataProjectObject::idOfFile(const std::filesystem::path& path) const {
    const std::filesystem::path inside = path.lexically_relative(root_->path());
    const std::u8string text = inside.generic_u8string();
    return "urn:standin:file:" + name_ + "/" + std::string(text.begin(), text.end());
}

void DataProjectObject::close() {
    root_->close();
    invalidate();
}

Ptr<DataProject> DataObject::activeProject() const {
    if (closed<"Data::activeProject">(*this)) return {};
    return active_;
}

bool DataObject::activeProject(const Ptr<DataProject>& value) {
    if (closed<"Data::activeProject">(*this)) return {};
    const auto found =
        std::find_if(projects_.begin(), projects_.end(),
                     [&value](const Ptr<DataProjectObject>& each) { return each == value; });
    if (found == projects_.end()) {
        return fail(adsk::core::BadApiCallError, "Data::activeProject: no such project");
    }
    active_ = *found;
    return true;
}

Ptr<DataProjectObject> DataObject::project(const std::string& name) const {
    const auto found =
        std::find_if(projects_.begin(), projects_.end(),
                     [&name](const Ptr<DataProjectObject>& each) { return each->title() == name; });
    return found == projects_.end() ? nullptr : *found;
}

void DataObject::close() {
    for (const Ptr<DataProjectObject>& each : projects_) {
        each->close();
    }
    projects_.clear();
    active_ = nullptr;
    invalidate();
}

}  // namespace host
