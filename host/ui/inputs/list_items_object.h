#pragma once

#include "host/base/object.h"
#include "host/ui/inputs/list_state.h"

#include <Core/ListInputs.h>

#include <cstddef>
#include <string>

namespace host::ui {

/// The list of an input as the API sees it.
class ListItemsObject final : public Object<core::ListItems> {
public:
    explicit ListItemsObject(ListState* list) : list_(list), input_(list->api()) {}
    ~ListItemsObject() override;

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::ListItem> item(std::size_t index) const override;
    core::Ptr<core::ListItem> add(const std::string& name, bool isSelected, const std::string& icon,
                                  int beforeIndex) override;
    bool clear() override;

    void dispose() { invalidate(); }

private:
    ListState* list_;
    core::Ptr<core::CommandInput> input_;  ///< keeps the list in memory
};

}  // namespace host::ui
