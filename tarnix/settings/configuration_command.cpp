#include "tarnix/settings/configuration_command.h"

#include "tarnix/settings/settings_document.h"
#include "tarnix/settings/web_addresses.h"

#include <string>

namespace tarnix {

using namespace adsk::core;

namespace {

constexpr const char* kProviderChoice = "choiceProvider";
constexpr const char* kProviderDescription = "helpdeskOtherDecription";
constexpr const char* kProviderAddress = "helpdeskOther";

// Places in the list of providers.
constexpr int kDefaultProvider = 0;
constexpr int kOtherProvider = 1;

Ptr<ListItems> addChoice(const Ptr<CommandInputs>& inputs) {
    const Ptr<RadioButtonGroupCommandInput> choice =
        inputs->addRadioButtonGroupCommandInput(kProviderChoice, "Select your support provider");
    Ptr<ListItems> providers = choice->listItems();
    providers->add("Set Ostrel Works as your support provider", /*isSelected=*/false, "", -1);
    providers->add("Set other support provider", /*isSelected=*/false, "", -1);
    choice->isFullWidth(true);
    return providers;
}

void showAddress(const Ptr<TextBoxCommandInput>& address) {
    address->isVisible(true);
    if (address->text() == defaultHelpdeskUrl) {
        // The user goes on typing after the scheme.
        address->text("http://");
    }
}

}  // namespace

void buildConfigurationDialog(const Ptr<Command>& command) {
    const Ptr<CommandInputs> inputs = command->commandInputs();
    const Ptr<ListItems> providers = addChoice(inputs);
    inputs->addTextBoxCommandInput(
        kProviderDescription, "",
        std::string("Enter the URL of your support provider e.g. ") + exampleHelpdeskUrl, 2,
        /*isReadOnly=*/true);
    const std::string url = readHelpdeskUrl();
    const Ptr<TextBoxCommandInput> address =
        inputs->addTextBoxCommandInput(kProviderAddress, "", url, 2, /*isReadOnly=*/false);
    // The host takes the text that a box is made with for HTML, in which an address with "&lt;" or
    // "<" would read otherwise, and OK would store that.
    address->text(url);
    // Each question reads the settings again.
    providers->item(readHelpdeskUrl() == defaultHelpdeskUrl ? kDefaultProvider : kOtherProvider)
        ->isSelected(true);
    address->isVisible(readHelpdeskUrl() != defaultHelpdeskUrl);
}

void ConfigTarnixCmdExecuteHandler::notify(const Ptr<CommandEventArgs>& eventArgs) {
    const Ptr<TextBoxCommandInput> address =
        eventArgs->command()->commandInputs()->itemById(kProviderAddress);
    writeHelpdeskUrl(address->isVisible() ? address->text() : std::string(defaultHelpdeskUrl));
}

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

void ConfigTarnixCmdCreateEventHandler::notify(const Ptr<CommandCreatedEventArgs>& eventArgs) {
    const Ptr<Command> command = eventArgs->command();
    buildConfigurationDialog(command);
    command->execute()->add(&executeHandler_);
    command->inputChanged()->add(&inputChangedHandler_);
}

}  // namespace tarnix
