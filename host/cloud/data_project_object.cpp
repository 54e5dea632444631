#include "host/cloud/data_project_object.h"

#include "host/base/last_error.h"
#include "host/base/utf8_path.h"
#include "host/cloud/file_name.h"

namespace host {

DataProjectObject::DataProjectObject(const std::filesystem::path& folder)
    : state_{.name = toUtf8(folder.filename()),
             .firstName = toUtf8(folder.filename()),
             .root = make<DataFolderObject>(*this, nullptr, folder)} {}

std::string DataProjectObject::id() const {
    if (closed<"id">(*this)) return {};
    return "urn:standin:project:" + state_.firstName;
}

bool DataProjectObject::name(const std::string& value) {
    if (closed<"name">(*this)) return {};
    return rename(value, "DataProject::name");
}

bool DataProjectObject::rename(const std::string& name, const std::string& operation) {
    if (!isFileName(name)) {
        return fail(core::BadApiCallError, operation + ": \"" + name + "\" cannot name a project");
    }
    const std::filesystem::path renamed = state_.root->path().parent_path() / fromUtf8(name);
    if (!renameInFolder(state_.root->path(), renamed, operation)) return false;
    state_.root->moveTo(renamed);
    state_.name = name;
    return true;
}

std::string DataProjectObject::idOfFile(const std::filesystem::path& path) const {
    const std::filesystem::path inside = path.lexically_relative(state_.root->path());
    const std::u8string text = inside.generic_u8string();
    const std::string id =
        "urn:standin:file:" + state_.firstName + "/" + std::string(text.begin(), text.end());
    std::string free = id;
    for (int number = 2; keptIds_.contains(free); ++number) {
        free = id + "#" + std::to_string(number);
    }
    return free;
}

void DataProjectObject::dispose() {
    state_.root->dispose();
    invalidate();
}

}  // namespace host
