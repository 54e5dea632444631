#pragma once

#include "host/ui/collection_object.h"
#include "host/ui/toolbar/command_control_object.h"

#include <string>

namespace host::ui {

/// The controls of a panel or of a menu; owns them.
class ToolbarControlsObject final
    : public CollectionObject<core::ToolbarControls, CommandControlObject> {
public:
    /// `parent` is the panel or menu; in a panel controls can be promoted.
    ToolbarControlsObject(core::Base* parent, bool inPanel) : parent_(parent), inPanel_(inPanel) {}

    core::Ptr<core::CommandControl> addCommand(
        const core::Ptr<core::CommandDefinition>& commandDefinition, const std::string& positionID,
        bool isBefore) override;

    [[nodiscard]] List all() const override { return all_; }
    [[nodiscard]] core::Base* parent() const { return parent_; }
    [[nodiscard]] bool inPanel() const { return inPanel_; }
    void append(const core::Ptr<CommandDefinitionObject>& definition);
    void remove(CommandControlObject& control) { removeEntry(all_, control); }
    void dispose();

private:
    core::Base* parent_;
    bool inPanel_;
    List all_;
};

}  // namespace host::ui
