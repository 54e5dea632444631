#include "tarnix/bom/behaviour/open_dialog.h"

#include "tarnix/bom/tabs/table_layout.h"
#include "tarnix/text/positions.h"

#include <cstddef>

namespace tarnix {

using namespace adsk::core;
using namespace adsk::fusion;

Ptr<Component> activeRootComponent() {
    const Ptr<Application> application = Application::get();
    return application ? rootComponentOf(application->activeProduct()) : nullptr;
}

Ptr<Component> rootComponentOf(const Ptr<Product>& product) {
    const Ptr<Design> design = product;
    return design ? design->rootComponent() : nullptr;
}

RowTabs rowTabs(const Ptr<CommandInputs>& inputs) {
    return {.structure = inputs->itemById(kStructureRows.tabId),
            .model = inputs->itemById(kModelRows.tabId)};
}

Ptr<CommandInputs> dialogInputsOf(const Ptr<CommandInput>& input) {
    return input->parentCommandInput()->parentCommand()->commandInputs();
}

Ptr<ListItem> firstSelected(const Ptr<ListItems>& items) {
    const std::size_t count = items->count();
    for (std::size_t i = 0; i < count; ++i) {
        Ptr<ListItem> item = items->item(i);
        if (item->isSelected()) {
            return item;
        }
    }
    return nullptr;
}

std::string positionOfRow(const Ptr<TableCommandInput>& table, int row) {
    const Ptr<CommandInput> cell = table->getInputAtPosition(row, kPositionColumn);
    if (const Ptr<TextBoxCommandInput> textBox = cell) {
        return stripPositionPrefix(textBox->text());
    }
    const Ptr<BoolValueCommandInput> button = cell;
    return stripPositionPrefix(button->name());
}

void hideRow(const Ptr<TableCommandInput>& table, int row) {
    const int lastColumn = table->numberOfColumns();
    for (int column = 0; column <= lastColumn; ++column) {
        table->getInputAtPosition(row, column)->isVisible(false);
    }
}

}  // namespace tarnix
