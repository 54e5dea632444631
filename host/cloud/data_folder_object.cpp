#include "host/cloud/data_folder_object.h"

#include "host/base/last_error.h"
#include "host/base/utf8_path.h"
#include "host/cloud/data_file_future_object.h"
#include "host/cloud/data_list_object.h"
#include "host/cloud/data_project_object.h"
#include "host/cloud/file_name.h"

#include <set>
#include <system_error>
#include <utility>

namespace host {

namespace fs = std::filesystem;

namespace {

struct Names {
    std::set<fs::path> folders;
    std::set<fs::path> files;
};

/// What a folder of the disk holds. One that cannot be read holds nothing.
Names namesIn(const fs::path& folder) {
    Names names;
    std::error_code error;
    fs::directory_iterator entries(folder, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        const fs::path name = entries->path().filename();
        std::error_code unknown;
        const fs::file_status status = entries->symlink_status(unknown);
        if (toUtf8(name).starts_with(".")) {
            continue;
        }
        if (fs::is_directory(status)) {
            names.folders.insert(name);
        } else if (fs::is_regular_file(entries->status(unknown))) {
            names.files.insert(name);
        }
    }
    return names;
}

template <class T>
void dropMissing(std::map<fs::path, core::Ptr<T>>& known, const std::set<fs::path>& names) {
    for (auto each = known.begin(); each != known.end();) {
        if (names.contains(each->first)) {
            ++each;
        } else {
            each->second->dispose();
            each = known.erase(each);
        }
    }
}

template <class Item, class T>
std::vector<core::Ptr<Item>> valuesOf(const std::map<fs::path, core::Ptr<T>>& known) {
    std::vector<core::Ptr<Item>> values;
    for (const auto& [name, each] : known) {
        values.push_back(each);
    }
    return values;
}

}  // namespace

DataFolderObject::DataFolderObject(DataProjectObject& project, DataFolderObject* parent,
                                   fs::path path)
    : project_(&project), parent_(parent), path_(std::move(path)) {}

std::string DataFolderObject::name() const {
    if (closed<"name">(*this)) return {};
    return toUtf8(path_.filename());
}

bool DataFolderObject::name(const std::string& value) {
    constexpr const char* kOperation = "DataFolder::name";
    if (closed<"name">(*this)) return {};
    if (parent_ == nullptr) return project_->rename(value, kOperation);
    if (!isFileName(value)) {
        return fail(core::BadApiCallError,
                    std::string(kOperation) + ": \"" + value + "\" cannot name a folder");
    }
    const fs::path renamed = path_.parent_path() / fromUtf8(value);
    if (!renameInFolder(path_, renamed, kOperation)) return false;
    auto entry = parent_->folders_.extract(path_.filename());
    entry.key() = renamed.filename();
    parent_->folders_.insert(std::move(entry));
    moveTo(renamed);
    return true;
}

void DataFolderObject::fileRenamed(const fs::path& from, const fs::path& to) {
    auto entry = files_.extract(from);
    entry.key() = to;
    files_.insert(std::move(entry));
}

void DataFolderObject::moveTo(const fs::path& path) {
    path_ = path;
    for (const auto& [name, each] : files_) {
        project_->keepId(each->state().id);
        each->moveTo(path_);
    }
    for (const auto& [name, each] : folders_) {
        each->moveTo(path_ / name);
    }
}

bool DataFolderObject::isRoot() const {
    if (closed<"isRoot">(*this)) return {};
    return parent_ == nullptr;
}

core::Ptr<core::DataFolder> DataFolderObject::parentFolder() const {
    if (closed<"parentFolder">(*this)) return {};
    return core::Ptr<core::DataFolder>(parent_);
}

// The API's getters are const, and the disk is looked at all the same.
core::Ptr<core::DataFolders> DataFolderObject::dataFolders() const {
    if (closed<"dataFolders">(*this)) return {};
    const_cast<DataFolderObject*>(this)->refresh();
    return make<DataFoldersObject>(valuesOf<core::DataFolder>(folders_));
}

core::Ptr<core::DataFiles> DataFolderObject::dataFiles() const {
    if (closed<"dataFiles">(*this)) return {};
    const_cast<DataFolderObject*>(this)->refresh();
    isListed_ = true;
    for (const auto& [name, each] : files_) {
        each->becomeKnown();
    }
    return make<DataFilesObject>(valuesOf<core::DataFile>(files_));
}

core::Ptr<core::DataFileFuture> DataFolderObject::uploadFile(const std::string& filename) {
    if (closed<"uploadFile">(*this)) return {};
    return beginUpload(core::Ptr<DataFolderObject>(this), filename);
}

void DataFolderObject::refresh() {
    const Names names = namesIn(path_);
    dropMissing(folders_, names.folders);
    dropMissing(files_, names.files);
    for (const fs::path& name : names.folders) {
        if (!folders_.contains(name)) {
            folders_[name] = make<DataFolderObject>(*project_, this, path_ / name);
        }
    }
    for (const fs::path& name : names.files) {
        if (!files_.contains(name)) {
            files_[name] =
                make<DataFileObject>(*this, path_ / name, project_->idOfFile(path_ / name));
        }
    }
}

core::Ptr<DataFolderObject> DataFolderObject::folder(const fs::path& name) const {
    const auto found = folders_.find(name);
    return found == folders_.end() ? nullptr : found->second;
}

core::Ptr<DataFileObject> DataFolderObject::file(const fs::path& name) const {
    const auto found = files_.find(name);
    return found == files_.end() ? nullptr : found->second;
}

core::Ptr<DataFileObject> DataFolderObject::findByName(const std::string& name) {
    refresh();
    for (const auto& [path, each] : folders_) {
        if (core::Ptr<DataFileObject> found = each->findByName(name)) {
            return found;
        }
    }
    for (const auto& [path, each] : files_) {
        if (each->state().name == name) {
            return each;
        }
    }
    return nullptr;
}

void DataFolderObject::dispose() {
    dropMissing(folders_, {});
    dropMissing(files_, {});
    parent_ = nullptr;
    project_ = nullptr;
    invalidate();
}

}  // namespace host
