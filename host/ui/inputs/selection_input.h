#pragma once

#include "host/ui/commands/selections.h"
#include "host/ui/inputs/input.h"

#include <cstddef>
#include <string>
#include <vector>

namespace host::ui {

class SelectionCommandInputObject final : public CommandInputObject<core::SelectionCommandInput> {
public:
    SelectionCommandInputObject(const InputOrigin& origin, const std::string& prompt)
        : CommandInputObject(origin, InputKind::Selection), prompt_(prompt) {}

    [[nodiscard]] std::size_t selectionCount() const override;
    [[nodiscard]] core::Ptr<core::Selection> selection(std::size_t index) const override;
    bool addSelection(const core::Ptr<core::Base>& selection) override;
    bool clearSelection() override;
    bool addSelectionFilter(const std::string& filter) override;
    bool clearSelectionFilter() override;
    bool setSelectionLimits(std::size_t minimum, std::size_t maximum) override;
    [[nodiscard]] std::string commandPrompt() const override {
        return get<"SelectionCommandInput::commandPrompt">(prompt_);
    }
    bool commandPrompt(const std::string& value) override {
        return set<"SelectionCommandInput::commandPrompt">(prompt_, value);
    }
    [[nodiscard]] bool hasFocus() const override;
    bool hasFocus(bool value) override;
    [[nodiscard]] bool isUseCurrentSelections() const override {
        return get<"SelectionCommandInput::isUseCurrentSelections">(usesCurrent_);
    }
    bool isUseCurrentSelections(bool value) override {
        return set<"SelectionCommandInput::isUseCurrentSelections">(usesCurrent_, value);
    }

    /// Of a selection both mean the focus.
    [[nodiscard]] bool isEnabled() const override;
    bool isEnabled(bool value) override;

    void retire() override;
    void visibilityChanged() override;

    /// @name For the host itself
    /// @{
    [[nodiscard]] bool accepts(const core::Ptr<core::Base>& entity) const;
    [[nodiscard]] bool usesCurrentSelections() const { return usesCurrent_; }
    [[nodiscard]] std::size_t minimum() const { return minimum_; }

    /// How many entities there may be; the greatest number where there is no limit.
    [[nodiscard]] std::size_t maximum() const;
    [[nodiscard]] bool isFull() const { return picks_.count() >= maximum(); }
    [[nodiscard]] const SelectionList& picks() const { return picks_; }

    /// Takes or drops an entity, here and among the active selections.
    void take(const core::Ptr<core::Base>& entity);
    void drop(const core::Ptr<core::Base>& entity);
    void dropAll();
    /// @}

private:
    [[nodiscard]] bool focused() const;
    void focus(bool value);
    [[nodiscard]] SelectionList& activeSelections() const;

    std::string prompt_;
    std::vector<std::string> filters_;
    SelectionList picks_;
    std::size_t minimum_ = 1;
    std::size_t maximum_ = 1;
    bool usesCurrent_ = true;
};

/// An input of the kind for selections as what it is.
inline SelectionCommandInputObject& selectionOf(InputState* input) {
    return static_cast<SelectionCommandInputObject&>(*input);
}

}  // namespace host::ui
