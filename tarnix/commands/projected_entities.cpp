#include "tarnix/commands/projected_entities.h"

#include <Fusion/FusionAll.h>

#include <cstddef>

namespace tarnix {

using namespace adsk::core;
using namespace adsk::fusion;

void ProjEntitAsConstrCmdExecuteHandler::notify(const Ptr<CommandEventArgs>& /*eventArgs*/) {
    const Ptr<Sketch> sketch = Application::get()->activeEditObject();
    if (!sketch) {
        return;
    }
    const Ptr<SketchCurves> curves = sketch->sketchCurves();
    const std::size_t count = curves->count();
    for (std::size_t index = 0; index < count; ++index) {
        const Ptr<SketchCurve> curve = curves->item(index);
        if (curve->isReference()) {
            curve->isConstruction(true);
        }
    }
}

void ProjEntitAsConstrCmdCreateHandler::notify(const Ptr<CommandCreatedEventArgs>& eventArgs) {
    const Ptr<Command> command = eventArgs->command();
    if (!command) {
        return;
    }
    // No dialog: with nothing in its inputs the host carries the command out at once.
    const Ptr<CommandInputs> inputs = command->commandInputs();
    static_cast<void>(inputs);
    command->execute()->add(&executeHandler_);
}

}  // namespace tarnix
