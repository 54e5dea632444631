#pragma once

#include "host/base/object.h"

#include <Core/Data.h>

#include <cstddef>
#include <utility>
#include <vector>

namespace host {

/// Folders as they were when the list was asked for.
class DataFoldersObject final : public Object<adsk::core::DataFolders> {
public:
    explicit DataFoldersObject(std::vector<adsk::core::Ptr<adsk::core::DataFolder>> items)
        : items_(std::move(items)) {}

    [[nodiscard]] std::size_t count() const override {
        if (refused<"DataFolders::count">()) return {};
        return items_.size();
    }

    [[nodiscard]] adsk::core::Ptr<adsk::core::DataFolder> item(std::size_t index) const override {
        if (refused<"DataFolders::item">()) return {};
        return index < items_.size() ? items_[index] : nullptr;
    }

private:
    std::vector<adsk::core::Ptr<adsk::core::DataFolder>> items_;
};

/// Files as they were when the list was asked for.
class DataFilesObject final : public Object<adsk::core::DataFiles> {
public:
    explicit DataFilesObject(std::vector<adsk::core::Ptr<adsk::core::DataFile>> items)
        : items_(std::move(items)) {}

    [[nodiscard]] std::size_t count() const override {
        if (refused<"DataFiles::count">()) return {};
        return items_.size();
    }

    [[nodiscard]] adsk::core::Ptr<adsk::core::DataFile> item(std::size_t index) const override {
        if (refused<"DataFiles::item">()) return {};
        return index < items_.size() ? items_[index] : nullptr;
    }

private:
    std::vector<adsk::core::Ptr<adsk::core::DataFile>> items_;
};

}  // namespace host
