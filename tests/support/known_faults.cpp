#include "tests/support/known_faults.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>

namespace test_support {
namespace {

struct KnownMisuse {
    const char* operation;
    const char* text;
};

constexpr std::array kKnown = {
    // Open local file ends the active command where the file dialog is cancelled. It is inside an
    // event of that command then, and the host ends no command from there.
    KnownMisuse{"UserInterface::terminateActiveCommand", "called inside an event of a command"},
    // Each showing of Structure adds its tab to the dialog again. The host refuses the second one,
    // and the add-in goes on with the first.
    KnownMisuse{"CommandInputs::addTabCommandInput", "the id \"QEMA_tab_structure_BOM\" is in use"},
    // `stop` deletes the panels, which takes their controls along, and then each command deletes
    // the controls it remembers.
    KnownMisuse{"ToolbarControl::deleteMe", "called on a deleted adsk::core::CommandControl"},
    // `stop` leaves Open local file registered for as long as the host runs; a second `run` adds
    // its definition again.
    KnownMisuse{"CommandDefinitions::addButtonDefinition",
                "the id \"QEMA_OpenLocalCmd_QAT\" is in use"},
};

/// Whether the last part of an id is a number, as in "iProperty_0".
bool endsInNumber(const std::string& id) {
    const std::string last = id.substr(id.rfind('_') + 1);
    return !last.empty() && std::isdigit(static_cast<unsigned char>(last.front())) != 0;
}

}  // namespace

bool isKnown(const host::Misuse& misuse) {
    return std::ranges::any_of(kKnown, [&](const KnownMisuse& known) {
        return misuse.operation == known.operation && misuse.text == known.text;
    });
}

// The choice of a column is the last to look at each change in the BOM dialog. It takes the number
// at the end of the input's id, and an id without one throws. All others are done by then.
bool isKnown(const host::UncaughtException& thrown) {
    return thrown.event == "OnInputChanged" && thrown.type == "std::invalid_argument" &&
           thrown.text == "invalid stoi argument" && !endsInNumber(thrown.inputId);
}

}  // namespace test_support
