#pragma once

#include "host/base/object.h"

#include <Core/Data.h>
#include <Core/Document.h>

#include <filesystem>
#include <string>
#include <vector>

namespace host {

class DataFolderObject;

/// A file of a project.
class DataFileObject final : public Object<core::DataFile> {
public:
    DataFileObject(DataFolderObject& folder, const std::filesystem::path& path, std::string id);

    [[nodiscard]] std::string id() const override { return get<"id">(state_.id); }
    [[nodiscard]] std::string name() const override { return get<"name">(state_.name); }
    bool name(const std::string& value) override;
    [[nodiscard]] core::Ptr<core::DataFolder> parentFolder() const override;
    [[nodiscard]] core::Ptr<core::DataProject> parentProject() const override;

    /// @name For the host itself
    /// @{
    struct State {
        DataFolderObject* folder = nullptr;
        std::filesystem::path path;
        std::string name;
        std::string id;

        /// When it can be opened, by the clock of the host: at once unless it was just uploaded.
        double convertedAt = 0;
    };
    [[nodiscard]] const State& state() const { return state_; }

    void setConvertedAt(double seconds) { state_.convertedAt = seconds; }

    /// Makes this the data file of a document as soon as the file's folder is listed.
    void await(const core::Ptr<core::Document>& document);

    /// Becomes the data file of the documents that wait for it.
    void becomeKnown();

    /// Its folder is another one, or is called differently.
    void moveTo(const std::filesystem::path& folder) {
        state_.path = folder / state_.path.filename();
    }

    /// The file or its folder no longer exists.
    void dispose();
    /// @}

private:
    State state_;
    std::vector<core::Ptr<core::Document>> waiting_;
};

}  // namespace host
