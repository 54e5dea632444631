#pragma once

#include "host/ui/inputs/command_input_object.h"

namespace host::ui {

/// The row of tabs. It is in no collection; a change of tab is reported as a change of it.
class TabBar final : public CommandInputObject<core::CommandInput> {
public:
    explicit TabBar(const InputOrigin& origin) : CommandInputObject(origin, InputKind::TabBar) {}
};

}  // namespace host::ui
