#include "tarnix/settings/configuration_input_changed_handler.h"

#include "tarnix/settings/configuration_dialog.h"
#include "tarnix/settings/settings_document.h"

namespace tarnix {

using adsk::core::CommandInputs;
using adsk::core::InputChangedEventArgs;
using adsk::core::Ptr;
using adsk::core::RadioButtonGroupCommandInput;
using adsk::core::TextBoxCommandInput;

namespace {

void showAddress(const Ptr<TextBoxCommandInput>& address) {
    address->isVisible(true);
    if (address->text() == defaultHelpdeskUrl) {
        // The user goes on typing behind the scheme.
        address->text("http://");
    }
}

}  // namespace

void ConfigTarnixCmdInputChangedHandler::notify(const Ptr<InputChangedEventArgs>& eventArgs) {
    if (eventArgs->input()->id() != kProviderChoice) {
        return;
    }
    const Ptr<CommandInputs> inputs = eventArgs->inputs();
    const Ptr<TextBoxCommandInput> address = inputs->itemById(kProviderAddress);
    const Ptr<RadioButtonGroupCommandInput> choice = inputs->itemById(kProviderChoice);
    const int chosen = choice->selectedItem()->index();
    if (chosen == kOtherProvider) {
        showAddress(address);
    } else if (chosen == kDefaultProvider) {
        address->isVisible(false);
    }
}

}  // namespace tarnix
