#include "host/cloud/data_project_object.h"

#include "host/base/last_error.h"
#include "host/base/utf8_path.h"

namespace host {

DataProjectObject::DataProjectObject(const std::filesystem::path& folder)
    : state_{.name = toUtf8(folder.filename()),
             .root = make<DataFolderObject>(*this, nullptr, folder)} {}

std::string DataProjectObject::id() const {
    if (closed<"id">(*this)) return {};
    return "urn:standin:project:" + state_.name;
}

bool DataProjectObject::name(const std::string& /*value*/) {
    if (closed<"name">(*this)) return {};
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

}  // namespace host
