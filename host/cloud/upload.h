#pragma once

#include "host/base/object.h"
#include "host/cloud/data_file.h"
#include "host/cloud/data_folder.h"

#include <Core/Data.h>

#include <filesystem>
#include <string>

namespace host {

/// A file on its way into a folder of the user's data.
///
/// It arrives when its time has come, whether or not a module still holds it.
class UploadObject final : public Object<adsk::core::DataFileFuture> {
public:
    explicit UploadObject(const adsk::core::Ptr<DataFolderObject>& folder) : folder_(folder) {}

    [[nodiscard]] adsk::core::UploadStates uploadState() const override;
    [[nodiscard]] adsk::core::Ptr<adsk::core::DataFile> dataFile() const override;

    /// @name For the host itself
    /// @{

    /// Puts `source` into the folder, as `name`. It fails where the disk does not let it.
    void arrive(const std::filesystem::path& source, const std::filesystem::path& name);
    void fail(const std::string& why);
    /// @}

private:
    adsk::core::Ptr<DataFolderObject> folder_;
    adsk::core::Ptr<DataFileObject> file_;
    adsk::core::UploadStates state_ = adsk::core::UploadProcessing;
};

/// Begins to upload a file of the local disk, which is found as `foundFile` finds it.
adsk::core::Ptr<adsk::core::DataFileFuture> beginUpload(
    const adsk::core::Ptr<DataFolderObject>& folder, const std::string& filename);

}  // namespace host
