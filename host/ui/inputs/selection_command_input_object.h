#pragma once

#include "host/ui/commands/selection_list.h"
#include "host/ui/inputs/command_input_object.h"

#include <cstddef>
#include <string>
#include <vector>

namespace host::ui {

/// What a selection asks for.
struct SelectionInputState {
    std::string prompt;
    std::vector<std::string> filters;  ///< empty: any entity
    std::size_t minimum = 1;
    std::size_t maximum = 1;  ///< 0 for no limit
    bool usesCurrentSelections = true;
};

class SelectionCommandInputObject final : public CommandInputObject<core::SelectionCommandInput> {
public:
    SelectionCommandInputObject(const InputOrigin& origin, const std::string& prompt)
        : CommandInputObject(origin, InputKind::Selection) {
        state_.prompt = prompt;
    }

    [[nodiscard]] std::size_t selectionCount() const override;
    [[nodiscard]] core::Ptr<core::Selection> selection(std::size_t index) const override;
    bool addSelection(const core::Ptr<core::Base>& selection) override;
    bool clearSelection() override;
    bool addSelectionFilter(const std::string& filter) override;
    bool clearSelectionFilter() override;
    bool setSelectionLimits(std::size_t minimum, std::size_t maximum) override;
    [[nodiscard]] std::string commandPrompt() const override {
        return get<"commandPrompt">(state_.prompt);
    }
    bool commandPrompt(const std::string& value) override {
        return set<"commandPrompt">(state_.prompt, value);
    }
    [[nodiscard]] bool hasFocus() const override;
    bool hasFocus(bool value) override;
    [[nodiscard]] bool isUseCurrentSelections() const override {
        return get<"isUseCurrentSelections">(state_.usesCurrentSelections);
    }
    bool isUseCurrentSelections(bool value) override {
        return set<"isUseCurrentSelections">(state_.usesCurrentSelections, value);
    }

    /// A selection is enabled while it has the focus, and enabling it gives it the focus.
    [[nodiscard]] bool isEnabled() const override;
    bool isEnabled(bool value) override;

    void dispose() override;
    void visibilityChanged() override;

    /// @name For the host itself
    /// @{
    [[nodiscard]] bool accepts(const core::Ptr<core::Base>& entity) const;
    [[nodiscard]] const SelectionInputState& state() const { return state_; }

    /// How many entities it takes; the greatest number where there is no limit.
    [[nodiscard]] std::size_t maximum() const;
    [[nodiscard]] bool isFull() const { return picks_.count() >= maximum(); }
    [[nodiscard]] const SelectionList& picks() const { return picks_; }

    /// Adds an entity, picked at that place, or removes one, here and among the active selections.
    void take(const core::Ptr<core::Base>& entity, const Place& place = {});
    void drop(const core::Ptr<core::Base>& entity);
    void dropInvalid() { picks_.removeInvalid(); }
    void dropAll();
    /// @}

private:
    [[nodiscard]] bool isFocused() const;
    void changeFocus(bool value);
    [[nodiscard]] SelectionList& activeSelections() const;

    SelectionInputState state_;
    SelectionList picks_;
};

/// An input whose kind is `Selection`.
inline SelectionCommandInputObject& selectionOf(InputState* input) {
    return static_cast<SelectionCommandInputObject&>(*input);
}

}  // namespace host::ui
