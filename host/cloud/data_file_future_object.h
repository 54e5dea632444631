#pragma once

#include "host/base/object.h"
#include "host/cloud/data_file_object.h"
#include "host/cloud/data_folder_object.h"

#include <Core/Data.h>

#include <filesystem>
#include <string>

namespace host {

/// A file on its way into a folder of the user's data.
///
/// It arrives when its time has come, whether or not a module still holds it.
class DataFileFutureObject final : public Object<core::DataFileFuture> {
public:
    explicit DataFileFutureObject(const core::Ptr<DataFolderObject>& folder) : folder_(folder) {}

    [[nodiscard]] core::UploadStates uploadState() const override {
        return get<"uploadState">(state_);
    }
    [[nodiscard]] core::Ptr<core::DataFile> dataFile() const override {
        return get<"dataFile">(file_);
    }

    /// @name For the host itself
    /// @{

    /// Puts `source` into the folder, as `name`. It fails where the disk does not let it.
    void arrive(const std::filesystem::path& source, const std::filesystem::path& name);
    void fail(const std::string& why);
    /// @}

private:
    core::Ptr<DataFolderObject> folder_;
    core::Ptr<DataFileObject> file_;
    core::UploadStates state_ = core::UploadProcessing;
};

/// Begins to upload a file of the local disk, which is found as `foundFile` finds it.
core::Ptr<core::DataFileFuture> beginUpload(const core::Ptr<DataFolderObject>& folder,
                                            const std::string& filename);

}  // namespace host
