#pragma once

#include "host/ui/inputs/list_input_object.h"

namespace host::ui {

class RadioButtonGroupCommandInputObject final
    : public ListInputObject<core::RadioButtonGroupCommandInput> {
public:
    explicit RadioButtonGroupCommandInputObject(const InputOrigin& origin)
        : ListInputObject(origin, InputKind::RadioGroup, /*multiSelect=*/false) {}
};

}  // namespace host::ui
