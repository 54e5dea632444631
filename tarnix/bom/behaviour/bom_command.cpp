#include "tarnix/bom/behaviour/bom_command.h"

#include "tarnix/bom/behaviour/bom_export.h"
#include "tarnix/bom/behaviour/bom_write_back.h"
#include "tarnix/bom/behaviour/column_choice.h"
#include "tarnix/bom/behaviour/open_dialog.h"
#include "tarnix/bom/behaviour/row_collapse.h"
#include "tarnix/bom/behaviour/structure_refresh.h"
#include "tarnix/bom/behaviour/structure_sort.h"
#include "tarnix/bom/model/walk.h"
#include "tarnix/bom/tabs/bom_configuration_tab.h"
#include "tarnix/bom/tabs/data_of_model_tab.h"
#include "tarnix/bom/tabs/structure_tab.h"
#include "tarnix/bom/tabs/table_layout.h"
#include "tarnix/text/checked.h"
#include "tarnix/text/ids.h"

#include <cstddef>
#include <string>
#include <utility>

namespace tarnix {

using namespace adsk::core;
using namespace adsk::fusion;

namespace {

bool contains(const std::string& text, const char* part) {
    return text.find(part) != std::string::npos;
}

/// Sorts the Structure table when the input is one of its header cells and an order is chosen.
/// `inputs` is the collection of the input's own tab, so that on another tab no table is found.
void sortByHeader(const Ptr<CommandInputs>& inputs, const Ptr<CommandInput>& input,
                  const std::string& id) {
    const Ptr<TableCommandInput> table = inputs->itemById(kStructureRows.tableId);
    const Ptr<DropDownCommandInput> order = inputs->itemById(kSortOrderId);
    const Ptr<ListItem> selected = order ? order->selectedItem() : nullptr;
    const std::string orderText = selected ? selected->name() : "";
    if (idTail(id) == "0" && table && !orderText.empty()) {
        sortStructureTable(table, input, orderText);
    }
}

/// Does what the input of this id asks for; false when nothing is to follow.
bool route(const Ptr<InputChangedEventArgs>& eventArgs, const Ptr<CommandInput>& input,
           const std::string& id) {
    if (id == kExportId) {
        exportBom(eventArgs);
        return true;
    }
    if (id == kSaveConfigId) {
        saveBomConfiguration(input);
        return true;
    }
    // The two ids differ in the case of a letter, so that neither holds the other.
    if (contains(id, kStructureRows.ids.icon) || contains(id, kModelRows.ids.icon)) {
        toggleRowCollapse(input);
        return true;
    }
    if (id == kTabBarId) {
        refreshOnTabChange(eventArgs);
        return false;
    }
    const Ptr<CommandInputs> inputs = eventArgs->inputs();
    if (!inputs) {
        return false;
    }
    sortByHeader(inputs, input, id);
    return true;
}

Ptr<Selections> activeSelections(const Ptr<Product>& product) {
    return product->parentDocument()->parent()->userInterface()->activeSelections();
}

/// What the paths of a part's other occurrences under the same parent hold too: the parent's path,
/// and at the top the part's own name without its number.
std::string groupKey(const std::string& path) {
    const std::size_t parentEnd = path.rfind('+');
    return path.substr(0, parentEnd != std::string::npos ? parentEnd : path.rfind(':'));
}

/// Selects the occurrences of the row's level whose part number is the row's and whose path holds
/// its group key.
void selectGroup(const std::vector<BomRow>& rows, const BomRow& row,
                 const Ptr<Selections>& selections) {
    const std::string key = groupKey(row.occurrence->fullPathName());
    const std::string partNumber = row.component->partNumber();
    for (const BomRow& other : rows) {
        if (other.level == row.level && other.component->partNumber() == partNumber &&
            other.occurrence->fullPathName().find(key) != std::string::npos) {
            selections->add(other.occurrence);
        }
    }
}

}  // namespace

void BomCmdInputChangedHandler::notify(const Ptr<InputChangedEventArgs>& eventArgs) {
    const Ptr<CommandInput> input = eventArgs->input();
    if (!input) {
        return;
    }
    const std::string id = input->id();
    const Ptr<Product> product = Application::get()->activeProduct();
    const Ptr<Component> root = rootComponentOf(product);
    if (!root) {
        return;
    }
    BomModel model;
    // What follows needs occurrences and levels alone.
    walkOccurrences(model, root->occurrences()->asList(), /*level=*/1, RowProperties::Dropped);
    rows = std::move(model.rows);
    if (route(eventArgs, input, id)) {
        onBomSelectionChange(eventArgs, rows);
        selectRowInDesign(input, product);
    }
}

void BomCmdInputChangedHandler::selectRowInDesign(Ptr<CommandInput> input,
                                                  Ptr<Product> product) const {
    const Ptr<CommandInputs> inputs = input->parentCommand()->commandInputs();
    const RowTabs tabs = rowTabs(inputs);
    const int number = idNumber(input->id());
    if (number == 0) {
        return;
    }
    // On the tab "Structure" the number counts the merged list, and is taken for a row of the plain
    // one here: where the two differ, what is selected is what the plain list has there.
    const std::size_t index = static_cast<std::size_t>(number) - 1;
    if (tabs.model->isActive()) {
        const BomRow& row = at(rows, index);
        const Ptr<Selections> selections = activeSelections(product);
        selections->clear();
        selections->add(row.occurrence);
    } else if (tabs.structure->isActive()) {
        const Ptr<Selections> selections = activeSelections(product);
        selections->clear();
        const BomRow& row = at(rows, index);
        selections->add(row.occurrence);
        selectGroup(rows, row, selections);
    }
}

void BomCmdExecuteHandler::notify(const Ptr<CommandEventArgs>& eventArgs) {
    writeActiveTable(eventArgs);
}

void BomCmdCreateEventHandler::notify(const Ptr<CommandCreatedEventArgs>& eventArgs) {
    const Ptr<Command> command = eventArgs->command();
    if (!command) {
        return;
    }
    buildBomDialog(model, command->commandInputs());
    dropProperties(model.rows);
    command->setDialogInitialSize(/*width=*/800, /*height=*/600);
    command->inputChanged()->add(&inputChangedHandler);
    command->execute()->add(&executeHandler);
    command->okButtonText("Save Changes and Close");
    command->cancelButtonText("Close");
}

void buildBomDialog(BomModel& model, Ptr<CommandInputs> inputs) {
    model.rows.clear();
    const Ptr<Component> root = rootComponentOf(Application::get()->activeProduct());
    if (!root) {
        return;
    }
    walkOccurrences(model, root->occurrences()->asList(), /*level=*/1);
    buildDataOfModelTab(model, inputs);
    buildStructureTab(inputs);
    buildBomConfigurationTab(model, inputs);
}

}  // namespace tarnix
