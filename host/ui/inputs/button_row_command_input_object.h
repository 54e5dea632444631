#pragma once

#include "host/ui/inputs/list_input_object.h"

namespace host::ui {

class ButtonRowCommandInputObject final : public ListInputObject<core::ButtonRowCommandInput> {
public:
    ButtonRowCommandInputObject(const InputOrigin& origin, bool multiSelect)
        : ListInputObject(origin, InputKind::ButtonRow, multiSelect) {}

    [[nodiscard]] bool isMultiSelectEnabled() const override {
        return get<"isMultiSelectEnabled">(isMultiSelect());
    }
};

}  // namespace host::ui
