#pragma once

#include "host/base/object.h"
#include "host/cloud/data_folder_object.h"

#include <Core/Data.h>

#include <filesystem>
#include <set>
#include <string>

namespace host {

/// A project: a folder of the disk.
class DataProjectObject final : public Object<core::DataProject> {
public:
    explicit DataProjectObject(const std::filesystem::path& folder);

    [[nodiscard]] std::string id() const override;
    [[nodiscard]] std::string name() const override { return get<"name">(state_.name); }
    bool name(const std::string& value) override;
    [[nodiscard]] core::Ptr<core::DataFolder> rootFolder() const override {
        return get<"rootFolder">(state_.root);
    }

    /// @name For the host itself
    /// @{
    struct State {
        std::string name;
        std::string firstName;  ///< which ids are made of
        core::Ptr<DataFolderObject> root;
    };
    [[nodiscard]] const State& state() const { return state_; }

    /// The id of a file in it, which no other file of the user has.
    [[nodiscard]] std::string idOfFile(const std::filesystem::path& path) const;

    /// A file keeps its id although its path has changed: no other file gets it.
    void keepId(const std::string& id) { keptIds_.insert(id); }

    /// Renames its folder on the disk; false as `renameInFolder`.
    bool rename(const std::string& name, const std::string& operation);

    void dispose();
    /// @}

private:
    State state_;
    std::set<std::string> keptIds_;
};

}  // namespace host
