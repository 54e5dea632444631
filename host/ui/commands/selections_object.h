#pragma once

#include "host/ui/commands/selection_list.h"

#include <cstddef>

namespace host::ui {

/// What the user has selected.
class SelectionsObject final : public Object<core::Selections> {
public:
    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::Selection> item(std::size_t index) const override;
    bool add(const core::Ptr<core::Base>& entity) override;
    bool clear() override;

    void dispose();

    SelectionList list;
};

}  // namespace host::ui
