#pragma once

#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"
#include "tests/tarnix/bom/behaviour/synthetic_dialog.h"

#include <Core/CoreAll.h>

#include <functional>
#include <memory>
#include <string>

namespace test_support {

/// A table that a test makes, with cells that the dialog's tables do not have.
class SyntheticTable : public BomDialogTest {
protected:
    /// Shows a table of this id in a tab; `fill` makes its cells among the tab's inputs.
    void show(const std::string& id, int columns,
              const std::function<void(const adsk::core::Ptr<adsk::core::CommandInputs>&)>& fill) {
        using adsk::core::CommandInputs;
        using adsk::core::Ptr;
        using adsk::core::TabCommandInput;
        dialog_ = std::make_unique<SyntheticDialog>(
            "SyntheticTable", [&](const Ptr<CommandInputs>& inputs) {
                const Ptr<TabCommandInput> tab = inputs->addTabCommandInput("syntheticTab", "");
                rows = tab->children()->addTableCommandInput(id, "", columns, "");
                fill(tab->children());
            });
        dialog_->open();
    }

    adsk::core::Ptr<adsk::core::TableCommandInput> rows;

private:
    std::unique_ptr<SyntheticDialog> dialog_;
};

}  // namespace test_support
