#include "host/cloud/user_data.h"

#include "host/base/utf8_path.h"
#include "host/cloud/data_object.h"
#include "host/design/document.h"

#include <algorithm>
#include <stdexcept>
#include <system_error>
#include <utility>
#include <vector>

namespace host {

namespace fs = std::filesystem;

namespace {

std::vector<core::Ptr<DataProjectObject>> projectsIn(const fs::path& folder) {
    std::vector<fs::path> paths;
    for (const fs::directory_entry& each : fs::directory_iterator(folder)) {
        const bool isHidden = toUtf8(each.path().filename()).starts_with(".");
        if (!isHidden && fs::is_directory(each.symlink_status())) {
            paths.push_back(each.path());
        }
    }
    std::sort(paths.begin(), paths.end());
    std::vector<core::Ptr<DataProjectObject>> projects;
    for (const fs::path& each : paths) {
        projects.push_back(make<DataProjectObject>(each));
    }
    return projects;
}

/// The parts of a path below a folder; none for a path that does not lie below it.
std::vector<fs::path> partsBelow(const fs::path& folder, const fs::path& path) {
    const fs::path inside = path.lexically_normal().lexically_relative(folder);
    std::vector<fs::path> parts(inside.begin(), inside.end());
    const bool isBelow = !parts.empty() && parts.front() != ".." && parts.front() != ".";
    return isBelow ? parts : std::vector<fs::path>();
}

/// A document that the host cannot place before the folder was listed waits for that.
void tieReference(const core::Ptr<core::Document>& document, const core::Ptr<DataFileObject>& file,
                  ReferencedFiles references) {
    if (references == ReferencedFiles::KnownAtOnce || file->state().folder->isListed()) {
        setDataFile(document, file);
    } else {
        file->await(document);
    }
}

}  // namespace

UserData::UserData(UserDataSetup setup) : setup_(std::move(setup)) {
    std::error_code error;
    const fs::path folder = fs::canonical(setup_.folder, error);
    if (error || !fs::is_directory(folder)) {
        throw std::invalid_argument("no folder of the user's data: " + toUtf8(setup_.folder));
    }
    setup_.folder = folder;
    data_ = make<DataObject>(projectsIn(setup_.folder));
    if (!setup_.activeProject.empty()) {
        const core::Ptr<DataProjectObject> project = data_->project(setup_.activeProject);
        if (!project) {
            throw std::invalid_argument("no project is called " + setup_.activeProject);
        }
        data_->activate(project);
    }
}

UserData::~UserData() {
    if (data_) {
        data_->dispose();
    }
}

core::Ptr<core::Data> UserData::api() const { return data_; }

core::Ptr<core::DataFile> UserData::fileAt(const fs::path& path) const {
    std::error_code error;
    const std::vector<fs::path> parts =
        partsBelow(setup_.folder, fs::weakly_canonical(path, error));
    constexpr std::size_t kProjectAndFile = 2;
    if (error || parts.size() < kProjectAndFile) {
        return nullptr;
    }
    const core::Ptr<DataProjectObject> project = data_->project(toUtf8(parts.front()));
    core::Ptr<DataFolderObject> folder = project ? project->state().root : nullptr;
    for (std::size_t i = 1; folder && i + 1 < parts.size(); ++i) {
        folder->refresh();
        folder = folder->folder(parts[i]);
    }
    if (!folder) {
        return nullptr;
    }
    folder->refresh();
    return folder->file(parts.back());
}

void UserData::tie(const core::Ptr<core::Document>& document, const fs::path& path) const {
    const core::Ptr<core::DataFile> own = fileAt(path);
    if (!own) {
        return;
    }
    setDataFile(document, own);
    for (const core::Ptr<core::Document>& each : referencesOf(document)) {
        const core::Ptr<DataProjectObject>& project = data_->state().active;
        const core::Ptr<DataFileObject> file =
            project ? project->state().root->findByName(each->name()) : nullptr;
        if (file) {
            tieReference(each, file, setup_.references);
        }
    }
}

}  // namespace host
