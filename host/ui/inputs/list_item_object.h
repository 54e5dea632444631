#pragma once

#include "host/base/object.h"
#include "host/ui/inputs/list_state.h"

#include <Core/ListInputs.h>

#include <cstddef>
#include <string>

namespace host::ui {

/// An item of a list as the API sees it.
class ListItemObject final : public Object<core::ListItem> {
public:
    ListItemObject(ListState* list, std::size_t index)
        : list_(list), index_(index), input_(list->api()) {}
    ~ListItemObject() override;

    [[nodiscard]] std::string name() const override;
    bool name(const std::string& value) override;
    [[nodiscard]] bool isSelected() const override;
    bool isSelected(bool value) override;
    [[nodiscard]] int index() const override;
    [[nodiscard]] std::string icon() const override;
    bool icon(const std::string& value) override;
    [[nodiscard]] bool isSeparator() const override { return get<"isSeparator">(false); }
    bool deleteMe() override;

    void dispose() { invalidate(); }

    /// Its index within its list has changed.
    void moved(std::size_t index) { index_ = index; }

private:
    [[nodiscard]] const ListState::Entry& entry() const { return list_->entries_[index_]; }

    ListState* list_;
    std::size_t index_;
    core::Ptr<core::CommandInput> input_;  ///< keeps the list in memory
};

}  // namespace host::ui
