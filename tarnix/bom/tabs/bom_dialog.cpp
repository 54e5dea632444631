#include "tarnix/bom/tabs/bom_dialog.h"

#include "tarnix/bom/model/walk.h"
#include "tarnix/bom/tabs/bom_configuration_tab.h"
#include "tarnix/bom/tabs/data_of_model_tab.h"
#include "tarnix/bom/tabs/structure_tab.h"

#include <Fusion/FusionAll.h>

namespace tarnix {

using adsk::core::Application;
using adsk::core::CommandInputs;
using adsk::core::Ptr;
using adsk::fusion::Component;
using adsk::fusion::Design;

void buildBomDialog(BomModel& model, Ptr<CommandInputs> inputs) {
    model.rows.clear();
    // Null where the product is no design.
    const Ptr<Design> design = Application::get()->activeProduct();
    const Ptr<Component> root = design ? design->rootComponent() : nullptr;
    if (!root) {
        return;
    }
    walkOccurrences(model, root->occurrences()->asList(), 1);
    buildDataOfModelTab(model, inputs);
    buildStructureTab(inputs);
    buildBomConfigurationTab(model, inputs);
}

}  // namespace tarnix
