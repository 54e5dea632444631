#pragma once

#include "host/ui/inputs/command_inputs_object.h"

namespace host::ui {

/// What tabs and groups have in common: a collection of their own.
class ContainerState : public InputState {
public:
    ContainerState(const InputOrigin& origin, InputKind inputKind);

    void dispose() override;
    [[nodiscard]] CommandInputsObject* inside() const override { return inside_.get(); }

protected:
    /// The collection as the API sees it.
    [[nodiscard]] const core::Ptr<CommandInputsObject>& insideApi() const { return inside_; }

private:
    core::Ptr<CommandInputsObject> inside_;
};

}  // namespace host::ui
