#include "tarnix/settings/configuration_dialog.h"

#include "tarnix/settings/settings_document.h"

#include <string>

namespace tarnix {

using adsk::core::Command;
using adsk::core::CommandInputs;
using adsk::core::ListItems;
using adsk::core::Ptr;
using adsk::core::RadioButtonGroupCommandInput;
using adsk::core::TextBoxCommandInput;

namespace {

constexpr const char* kDescription =
    "Enter the URL of your support provider e.g. http://support.fusion.example/";

Ptr<ListItems> addChoice(const Ptr<CommandInputs>& inputs) {
    const Ptr<RadioButtonGroupCommandInput> choice =
        inputs->addRadioButtonGroupCommandInput(kProviderChoice, "Select your support provider");
    Ptr<ListItems> providers = choice->listItems();
    providers->add("Set Ostrel Works as your support provider", /*isSelected=*/false, "", -1);
    providers->add("Set other support provider", /*isSelected=*/false, "", -1);
    choice->isFullWidth(true);
    return providers;
}

}  // namespace

void buildConfigurationDialog(const Ptr<Command>& command) {
    const Ptr<CommandInputs> inputs = command->commandInputs();
    const Ptr<ListItems> providers = addChoice(inputs);
    inputs->addTextBoxCommandInput(kProviderDescription, "", kDescription, 2, /*isReadOnly=*/true);
    const std::string url = readHelpdeskUrl();
    const Ptr<TextBoxCommandInput> address =
        inputs->addTextBoxCommandInput(kProviderAddress, "", url, 2, /*isReadOnly=*/false);
    // The host takes what a box begins with for HTML, in which an address with "&lt;" or "<" would
    // read otherwise, and OK would store that.
    address->text(url);
    // Each question reads the settings again.
    providers->item(readHelpdeskUrl() == defaultHelpdeskUrl ? kDefaultProvider : kOtherProvider)
        ->isSelected(true);
    address->isVisible(readHelpdeskUrl() != defaultHelpdeskUrl);
}

}  // namespace tarnix
