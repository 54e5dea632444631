#pragma once

#include "host/base/object.h"

#include <Core/Data.h>

#include <cstddef>
#include <utility>
#include <vector>

namespace host {

/// What a folder held when the list was asked for.
template <class Interface, class Item>
class DataListObject final : public Object<Interface> {
public:
    explicit DataListObject(std::vector<core::Ptr<Item>> items) : items_(std::move(items)) {}

    [[nodiscard]] std::size_t count() const override {
        return this->template get<"count">(items_.size());
    }

    [[nodiscard]] core::Ptr<Item> item(std::size_t index) const override {
        if (closed<"item">(*this)) return {};
        return index < items_.size() ? items_[index] : nullptr;
    }

private:
    std::vector<core::Ptr<Item>> items_;
};

using DataFoldersObject = DataListObject<core::DataFolders, core::DataFolder>;
using DataFilesObject = DataListObject<core::DataFiles, core::DataFile>;

}  // namespace host
