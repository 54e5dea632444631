#pragma once

#include "host/ui/inputs/command_input_object.h"
#include "host/ui/inputs/container_state.h"

#include <string>

namespace host::ui {

class TabCommandInputObject final
    : public CommandInputObject<core::TabCommandInput, ContainerState> {
public:
    TabCommandInputObject(const InputOrigin& origin, const std::string& resourceFolder)
        : CommandInputObject(origin, InputKind::Tab), resourceFolder_(resourceFolder) {}

    [[nodiscard]] core::Ptr<core::CommandInputs> children() const override {
        return get<"children">(insideApi());
    }
    [[nodiscard]] bool isActive() const override;
    bool activate() override;
    [[nodiscard]] std::string resourceFolder() const override {
        return get<"resourceFolder">(resourceFolder_);
    }

private:
    std::string resourceFolder_;
};

}  // namespace host::ui
