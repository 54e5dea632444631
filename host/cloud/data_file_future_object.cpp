#include "host/cloud/data_file_future_object.h"

#include "host/base/clock.h"
#include "host/base/host_state.h"
#include "host/base/last_error.h"
#include "host/base/owned_folder.h"
#include "host/base/utf8_path.h"
#include "host/cloud/storage_pace.h"
#include "host/import/found_file.h"

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <system_error>

namespace host {

namespace fs = std::filesystem;

namespace {

/// A folder that no listing shows: what is half copied is no file of the user's.
const FolderKind kHalfCopied = {.prefix = ".", .suffix = ".uploading"};

void copyWhole(const fs::path& source, const fs::path& target) {
    std::error_code error;
    const fs::path parent = target.parent_path();
    const std::unique_ptr<OwnedFolder> folder = OwnedFolder::make(parent, kHalfCopied, error);
    if (!folder) {
        throw fs::filesystem_error("upload", parent, error);
    }
    const fs::path half = folder->path() / "copy";
    fs::copy_file(source, half);
    fs::rename(half, target);
}

/// What happens to an upload when its time has come.
std::function<void()> endOf(const core::Ptr<DataFileFutureObject>& upload,
                            const std::string& filename) {
    if (storagePace().uploadFails) {
        return [upload] { upload->fail("the storage does not take the file"); };
    }
    try {
        return [upload, source = foundFile(filename), name = fromUtf8(filename).filename()] {
            upload->arrive(source, name);
        };
    } catch (const std::exception& error) {
        return [upload, why = std::string(error.what())] { upload->fail(why); };
    }
}

}  // namespace

void DataFileFutureObject::arrive(const fs::path& source, const fs::path& name) {
    try {
        if (!folder_->isValid()) {
            fail("its folder is gone");
            return;
        }
        if (!fs::is_regular_file(source)) {
            fail(toUtf8(source) + " is no ordinary file");
            return;
        }
        copyWhole(source, folder_->path() / name);
        folder_->refresh();
        file_ = folder_->file(name);
    } catch (const fs::filesystem_error& error) {
        fail(toUtf8(source) + " cannot be copied: " + error.code().message());
        return;
    }
    if (file_) {
        file_->setConvertedAt(clock::now() + storagePace().conversionSeconds);
        state_ = core::UploadFinished;
    } else {
        fail("a name that begins with a dot is skipped");
    }
}

void DataFileFutureObject::fail(const std::string& why) {
    host::fail(core::OperationFailed, "DataFolder::uploadFile: " + why);
    state_ = core::UploadFailed;
}

core::Ptr<core::DataFileFuture> beginUpload(const core::Ptr<DataFolderObject>& folder,
                                            const std::string& filename) {
    core::Ptr<DataFileFutureObject> upload = make<DataFileFutureObject>(folder);
    if (HostState::current() == nullptr) {
        upload->fail("the host has ended");
        return upload;
    }
    clock::schedule(clock::now() + storagePace().uploadSeconds, endOf(upload, filename));
    return upload;
}

}  // namespace host
