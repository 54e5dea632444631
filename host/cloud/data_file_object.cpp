#include "host/cloud/data_file_object.h"

#include "host/base/last_error.h"
#include "host/base/utf8_path.h"
#include "host/cloud/data_folder_object.h"
#include "host/cloud/data_project_object.h"
#include "host/cloud/file_name.h"
#include "host/design/document.h"

#include <utility>

namespace host {

namespace {

/// The name of a file without its ending, of which a design file has two.
std::string titleOf(std::filesystem::path path) {
    path = path.filename();
    const bool isDesign = path.extension() == ".json" && path.stem().extension() == ".design";
    return toUtf8(isDesign ? path.stem().stem() : path.stem());
}

}  // namespace

DataFileObject::DataFileObject(DataFolderObject& folder, const std::filesystem::path& path,
                               std::string id)
    : state_{.folder = &folder, .path = path, .name = titleOf(path), .id = std::move(id)} {}

bool DataFileObject::name(const std::string& value) {
    constexpr const char* kOperation = "DataFile::name";
    if (closed<"name">(*this)) return {};
    if (!isFileName(value)) {
        return fail(core::BadApiCallError,
                    std::string(kOperation) + ": \"" + value + "\" cannot name a file");
    }
    const std::string ending = toUtf8(state_.path.filename()).substr(state_.name.size());
    const std::filesystem::path renamed = state_.path.parent_path() / fromUtf8(value + ending);
    if (!renameInFolder(state_.path, renamed, kOperation)) return false;
    state_.folder->fileRenamed(state_.path.filename(), renamed.filename());
    state_.folder->project().keepId(state_.id);
    state_.path = renamed;
    state_.name = value;
    return true;
}

core::Ptr<core::DataFolder> DataFileObject::parentFolder() const {
    if (closed<"parentFolder">(*this)) return {};
    return core::Ptr<core::DataFolder>(state_.folder);
}

core::Ptr<core::DataProject> DataFileObject::parentProject() const {
    if (closed<"parentProject">(*this)) return {};
    return core::Ptr<core::DataProject>(&state_.folder->project());
}

void DataFileObject::await(const core::Ptr<core::Document>& document) {
    waiting_.push_back(document);
}

void DataFileObject::becomeKnown() {
    for (const core::Ptr<core::Document>& each : std::exchange(waiting_, {})) {
        if (each->isValid()) {
            setDataFile(each, core::Ptr<core::DataFile>(this));
        }
    }
}

void DataFileObject::dispose() {
    state_.folder = nullptr;
    waiting_.clear();
    invalidate();
}

}  // namespace host
