#include "host/cloud/data_file_future_object.h"

#include "host/base/clock.h"
#include "host/base/host_state.h"
#include "host/base/last_error.h"
#include "host/base/utf8_path.h"
#include "host/cloud/storage_pace.h"
#include "host/import/found_file.h"

#include <chrono>
#include <exception>
#include <functional>
#include <random>
#include <string>
#include <system_error>
#include <vector>

namespace host {

namespace fs = std::filesystem;

namespace {

constexpr const char* kHalfCopied = ".uploading";

/// A name that no listing shows, in the same folder: what is half copied is no file of the user's.
/// It is another one each time: two processes may upload one name at once.
fs::path hiddenBeside(const fs::path& path) {
    std::random_device device;
    fs::path name = ".";
    name += path.filename();
    name += "." + std::to_string(device()) + kHalfCopied;
    return path.parent_path() / name;
}

/// Removes what processes left that ended while they copied. No copy takes an hour.
void removeHalfCopied(const fs::path& folder) {
    const auto limit = fs::file_time_type::clock::now() - std::chrono::hours(1);
    std::error_code ignored;
    std::vector<fs::path> leftovers;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored)) {
        const std::string name = toUtf8(entry.path().filename());
        if (name.starts_with(".") && name.ends_with(kHalfCopied) &&
            entry.last_write_time(ignored) < limit) {
            leftovers.push_back(entry.path());
        }
    }
    for (const fs::path& leftover : leftovers) {
        fs::remove(leftover, ignored);
    }
}

void copyWhole(const fs::path& source, const fs::path& target) {
    const fs::path half = hiddenBeside(target);
    removeHalfCopied(target.parent_path());
    try {
        fs::copy_file(source, half, fs::copy_options::overwrite_existing);
        fs::rename(half, target);
    } catch (const fs::filesystem_error&) {
        std::error_code ignored;
        fs::remove(half, ignored);
        throw;
    }
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
