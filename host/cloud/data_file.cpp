#include "host/cloud/data_file.h"

#include "host/base/last_error.h"
#include "host/base/utf8_path.h"
#include "host/cloud/data_folder.h"
#include "host/cloud/data_project.h"
#include "host/design/document.h"

#include <utility>

namespace host {

using adsk::core::DataFolder;
using adsk::core::DataProject;
using adsk::core::Document;
using adsk::core::Ptr;

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
    : folder_(&folder), path_(path), name_(titleOf(path)), id_(std::move(id)) {}

std::string DataFileObject::id() const {
    if (closed<"DataFile::id">(*this)) return {};
    return id_;
}

std::string DataFileObject::name() const {
    if (closed<"DataFile::name">(*this)) return {};
    return name_;
}

bool DataFileObject::name(const std::string& /*value*/) {
    if (closed<"DataFile::name">(*this)) return {};
    return notImplemented("DataFile::name: to rename a file");
}

Ptr<DataFolder> DataFileObject::parentFolder() const {
    if (closed<"DataFile::parentFolder">(*this)) return {};
    return Ptr<DataFolder>(folder_);
}

Ptr<DataProject> DataFileObject::parentProject() const {
    if (closed<"DataFile::parentProject">(*this)) return {};
    return Ptr<DataProject>(&folder_->project());
}

void DataFileObject::await(const Ptr<Document>& document) { waiting_.push_back(document); }

void DataFileObject::becomeKnown() {
    for (const Ptr<Document>& each : std::exchange(waiting_, {})) {
        if (each->isValid()) {
            setDataFile(each, Ptr<adsk::core::DataFile>(this));
        }
    }
}

void DataFileObject::close() {
    folder_ = nullptr;
    waiting_.clear();
    invalidate();
}

}  // namespace host
