#include "tarnix/commands/move_to_origin.h"

#include <Fusion/FusionAll.h>

#include <cstddef>
#include <exception>
#include <vector>

namespace tarnix {
namespace {

using namespace adsk::core;
using namespace adsk::fusion;

using OccurrenceVector = std::vector<Ptr<Occurrence>>;

Ptr<SelectionCommandInput> addOccurrenceInput(const Ptr<CommandInputs>& inputs) {
    Ptr<SelectionCommandInput> input =
        inputs->addSelectionInput("occurenceInput", "Occurence", "Select the Occurence.");
    input->setSelectionLimits(/*minimum=*/1, /*maximum=*/0);
    input->addSelectionFilter("Occurrences");
    return input;
}

Ptr<BoolValueCommandInput> addGroundInput(const Ptr<CommandInputs>& inputs) {
    return inputs->addBoolValueInput("ground", "Gound selection occurence", /*isCheckBox=*/true,
                                     /*resourceFolder=*/"", /*initialValue=*/false);
}

OccurrenceVector selectedOccurrences(const Ptr<SelectionCommandInput>& input) {
    OccurrenceVector result;
    const std::size_t count = input->selectionCount();
    for (std::size_t index = 0; index < count; ++index) {
        const Ptr<Occurrence> occurrence = input->selection(index)->entity();
        if (!occurrence) {
            throw std::exception();
        }
        result.push_back(occurrence);
    }
    return result;
}

/// Places all of them at the root's origin, in one step of the host.
void moveToOrigin(const Ptr<Component>& root, const OccurrenceVector& occurrences,
                  const Ptr<Matrix3D>& origin) {
    if (root->occurrences()->count() > 0) {
        const std::vector<Ptr<Matrix3D>> transforms(occurrences.size(), origin);
        root->transformOccurrences(occurrences, transforms, /*ignoreJoints=*/true);
    }
}

void ground(const OccurrenceVector& occurrences) {
    for (const Ptr<Occurrence>& occurrence : occurrences) {
        occurrence->isGrounded(true);
    }
}

}  // namespace

void MoveCompToOriginCmdExecuteHendler::notify(const Ptr<CommandEventArgs>& /*eventArgs*/) {
    const Ptr<Matrix3D> origin = Matrix3D::create();
    const OccurrenceVector occurrences = selectedOccurrences(selectionInput);
    const Ptr<Design> design = Application::get()->activeProduct();
    if (!design) {
        return;
    }
    moveToOrigin(design->rootComponent(), occurrences, origin);
    if (groundInput->value()) {
        ground(occurrences);
    }
}

void MoveCompToOriginCmdCreateHandler::notify(const Ptr<CommandCreatedEventArgs>& eventArgs) {
    const Ptr<Command> command = eventArgs->command();
    const Ptr<CommandInputs> inputs = command->commandInputs();
    executeHandler_.selectionInput = addOccurrenceInput(inputs);
    executeHandler_.groundInput = addGroundInput(inputs);
    command->execute()->add(&executeHandler_);
}

}  // namespace tarnix
