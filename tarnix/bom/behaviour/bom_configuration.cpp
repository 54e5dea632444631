#include "tarnix/bom/behaviour/bom_configuration.h"

#include "tarnix/bom/behaviour/list_choice.h"
#include "tarnix/bom/model/property_keys.h"
#include "tarnix/bom/tabs/bom_ids.h"
#include "tarnix/settings/settings_document.h"

namespace tarnix {

using adsk::core::CommandInput;
using adsk::core::DropDownCommandInput;
using adsk::core::ListItem;
using adsk::core::Ptr;
using adsk::core::StringValueCommandInput;
using adsk::core::TableCommandInput;

void saveBomConfiguration(Ptr<CommandInput> input) {
    replaceCategoryItems("bomItems", [&input] { return readBomConfigTable(input); });
}

std::vector<std::string> readBomConfigTable(Ptr<CommandInput> input) {
    constexpr int kFirstFreeColumn = 4;
    constexpr int kCaptionRow = 1;
    constexpr int kPropertyRow = 2;
    std::vector<std::string> items;
    const Ptr<TableCommandInput> table = input->commandInputs()->itemById(kConfigTableId);
    if (!table) {
        return items;
    }
    const int columns = table->numberOfColumns();
    for (int column = kFirstFreeColumn; column < columns; ++column) {
        const Ptr<DropDownCommandInput> dropDown = table->getInputAtPosition(kPropertyRow, column);
        const Ptr<StringValueCommandInput> caption = table->getInputAtPosition(kCaptionRow, column);
        const Ptr<ListItem> selected = dropDown ? firstSelected(dropDown->listItems()) : nullptr;
        if (!selected) {
            continue;
        }
        const std::string name = selected->name();
        if (name != "---Select One---") {
            items.push_back(kPropertyPrefix + name + ";" + caption->value());
        }
    }
    return items;
}

}  // namespace tarnix
