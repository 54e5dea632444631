#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"

#include <set>

namespace test_support {

using namespace adsk::core;
using namespace adsk::fusion;

std::string BomDialogTest::selected() const {
    const Ptr<Selections> selections = Application::get()->userInterface()->activeSelections();
    std::set<std::string> seen;
    std::string paths;
    for (std::size_t i = 0; i < selections->count(); ++i) {
        const Ptr<Occurrence> occurrence = selections->item(i)->entity();
        if (seen.insert(occurrence->fullPathName()).second) {
            paths += (paths.empty() ? "" : "\n") + occurrence->fullPathName();
        }
    }
    return paths;
}

void BomDialogTest::select(std::size_t index) const {
    const Ptr<Selections> selections = Application::get()->userInterface()->activeSelections();
    ASSERT_TRUE(selections->add(root()->occurrences()->item(index)));
}

Ptr<Component> BomDialogTest::root() const {
    const Ptr<Design> design = Application::get()->activeProduct();
    return design->rootComponent();
}

Ptr<Component> BomDialogTest::component(std::size_t index) const {
    return root()->occurrences()->item(index)->component();
}

std::string BomDialogTest::value(const std::string& id) const {
    const Ptr<StringValueCommandInput> field = session->input(id);
    return field->value();
}

void BomDialogTest::hideRow(int row) const {
    const Ptr<TableCommandInput> table = shownTableInput();
    for (int column = 0; column <= table->numberOfColumns(); ++column) {
        table->getInputAtPosition(row, column)->isVisible(false);
    }
}

}  // namespace test_support
