#include "tarnix/bom/behaviour/bom_input_changed_handler.h"

#include "tarnix/bom/behaviour/active_design.h"
#include "tarnix/bom/behaviour/bom_export.h"
#include "tarnix/bom/behaviour/column_choice.h"
#include "tarnix/bom/behaviour/structure_refresh.h"
#include "tarnix/bom/model/walk.h"
#include "tarnix/bom/tabs/bom_ids.h"
#include "tarnix/text/checked.h"
#include "tarnix/text/ids.h"

#include <cstddef>
#include <string>

namespace tarnix {

using adsk::core::Application;
using adsk::core::CommandInput;
using adsk::core::CommandInputs;
using adsk::core::InputChangedEventArgs;
using adsk::core::Product;
using adsk::core::Ptr;
using adsk::core::Selections;
using adsk::core::TabCommandInput;
using adsk::fusion::Component;

namespace {

/// Does what the input of this id asks for; false when nothing is to follow.
bool route(const Ptr<InputChangedEventArgs>& eventArgs, const std::string& id) {
    if (id == kExportId) {
        exportBom(eventArgs);
        return true;
    }
    if (id == "APITabBar") {
        refreshOnTabChange(eventArgs);
        return false;
    }
    return static_cast<bool>(eventArgs->inputs());
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
    rows_ = walkOccurrences(model, root->occurrences()->asList(), 1);
    if (route(eventArgs, id)) {
        onBomSelectionChange(eventArgs, rows_);
        selectRowInDesign(input, product);
    }
}

void BomCmdInputChangedHandler::selectRowInDesign(Ptr<CommandInput> input,
                                                  Ptr<Product> product) const {
    const Ptr<CommandInputs> inputs = input->parentCommand()->commandInputs();
    const Ptr<TabCommandInput> structureTab = inputs->itemById(kStructureTabId);
    const Ptr<TabCommandInput> modelTab = inputs->itemById(kModelTabId);
    const int number = idNumber(input->id());
    if (number == 0) {
        return;
    }
    // On the tab "Structure" the number counts the merged list, and still stands for a row of the
    // plain one here: where the two differ, what is selected is what the plain list has there.
    const std::size_t index = static_cast<std::size_t>(number) - 1;
    if (modelTab->isActive()) {
        const BomRow& row = at(rows_, index);
        const Ptr<Selections> selections = activeSelections(product);
        selections->clear();
        selections->add(row.occurrence);
    } else if (structureTab->isActive()) {
        const BomRow& row = at(rows_, index);
        const Ptr<Selections> selections = activeSelections(product);
        selections->clear();
        selections->add(row.occurrence);
        selectGroup(rows_, row, selections);
    }
}

}  // namespace tarnix
