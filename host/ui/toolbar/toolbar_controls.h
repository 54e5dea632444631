#pragma once

#include "host/ui/commands/command_definitions.h"

#include <Core/Toolbars.h>

#include <cstddef>
#include <string>
#include <vector>

namespace host::ui {

class ToolbarControlsObject;

class CommandControlObject final : public Object<core::CommandControl> {
public:
    CommandControlObject(ToolbarControlsObject* owner,
                         core::Ptr<CommandDefinitionObject> definition)
        : owner_(owner), id_(definition->identifier()), definition_(std::move(definition)) {}

    [[nodiscard]] std::string id() const override { return get<"ToolbarControl::id">(id_); }
    [[nodiscard]] bool isVisible() const override {
        return get<"ToolbarControl::isVisible">(visible_);
    }
    bool isVisible(bool value) override {
        return set<"ToolbarControl::isVisible">(visible_, value);
    }
    [[nodiscard]] core::Ptr<core::Base> parent() const override;
    [[nodiscard]] std::size_t index() const override;
    bool deleteMe() override;
    [[nodiscard]] core::Ptr<core::CommandDefinition> commandDefinition() const override;
    [[nodiscard]] bool isPromoted() const override {
        return get<"CommandControl::isPromoted">(promoted_);
    }
    bool isPromoted(bool value) override;

    [[nodiscard]] const std::string& identifier() const { return id_; }
    [[nodiscard]] bool shown() const { return visible_; }
    [[nodiscard]] bool promoted() const { return promoted_; }
    [[nodiscard]] const core::Ptr<CommandDefinitionObject>& definition() const {
        return definition_;
    }
    void dispose();

private:
    ToolbarControlsObject* owner_;
    std::string id_;
    core::Ptr<CommandDefinitionObject> definition_;
    bool visible_ = true;
    bool promoted_ = false;
};

/// The controls of a panel or of a menu; owns them.
class ToolbarControlsObject final : public Object<core::ToolbarControls> {
public:
    /// `parent` is the panel or menu; in a panel controls can be promoted.
    ToolbarControlsObject(core::Base* parent, bool inPanel) : parent_(parent), inPanel_(inPanel) {}

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::ToolbarControl> item(std::size_t index) const override;
    [[nodiscard]] core::Ptr<core::ToolbarControl> itemById(const std::string& id) const override;
    core::Ptr<core::CommandControl> addCommand(
        const core::Ptr<core::CommandDefinition>& commandDefinition, const std::string& positionID,
        bool isBefore) override;

    [[nodiscard]] const std::vector<core::Ptr<CommandControlObject>>& all() const { return all_; }
    [[nodiscard]] core::Base* parent() const { return parent_; }
    [[nodiscard]] bool inPanel() const { return inPanel_; }
    core::Ptr<CommandControlObject> append(const core::Ptr<CommandDefinitionObject>& definition);
    void remove(CommandControlObject& control);
    void dispose();

private:
    [[nodiscard]] std::size_t placeOf(const std::string& id) const;

    core::Base* parent_;
    bool inPanel_;
    std::vector<core::Ptr<CommandControlObject>> all_;
};

}  // namespace host::ui
