#include <Core/Application.h>
#include <Core/CommandDefinitions.h>
#include <Core/CommandInputs.h>
#include <Core/Commands.h>
#include <Core/Dialogs.h>
#include <Core/Palettes.h>
#include <Core/Preferences.h>
#include <Core/Toolbars.h>
#include <Core/UserInterface.h>
#include <Core/Workspaces.h>

/// The names of the classes, each in one place: a class's own `classType` and the `objectType` of
/// its objects are the same pointer.
namespace adsk::core {

const char* Application::classType() { return "adsk::core::Application"; }
const char* ApplicationCommandEvent::classType() { return "adsk::core::ApplicationCommandEvent"; }
const char* ApplicationCommandEventArgs::classType() {
    return "adsk::core::ApplicationCommandEventArgs";
}
const char* Base::classType() { return "adsk::core::Base"; }
const char* BoolValueCommandInput::classType() { return "adsk::core::BoolValueCommandInput"; }
const char* ButtonRowCommandInput::classType() { return "adsk::core::ButtonRowCommandInput"; }
const char* Command::classType() { return "adsk::core::Command"; }
const char* CommandControl::classType() { return "adsk::core::CommandControl"; }
const char* CommandCreatedEvent::classType() { return "adsk::core::CommandCreatedEvent"; }
const char* CommandCreatedEventArgs::classType() { return "adsk::core::CommandCreatedEventArgs"; }
const char* CommandDefinition::classType() { return "adsk::core::CommandDefinition"; }
const char* CommandDefinitions::classType() { return "adsk::core::CommandDefinitions"; }
const char* CommandEvent::classType() { return "adsk::core::CommandEvent"; }
const char* CommandEventArgs::classType() { return "adsk::core::CommandEventArgs"; }
const char* CommandInput::classType() { return "adsk::core::CommandInput"; }
const char* CommandInputs::classType() { return "adsk::core::CommandInputs"; }
const char* DropDownCommandInput::classType() { return "adsk::core::DropDownCommandInput"; }
const char* Event::classType() { return "adsk::core::Event"; }
const char* EventArgs::classType() { return "adsk::core::EventArgs"; }
const char* FileDialog::classType() { return "adsk::core::FileDialog"; }
const char* GeneralPreferences::classType() { return "adsk::core::GeneralPreferences"; }
const char* GroupCommandInput::classType() { return "adsk::core::GroupCommandInput"; }
const char* ImageCommandInput::classType() { return "adsk::core::ImageCommandInput"; }
const char* InputChangedEvent::classType() { return "adsk::core::InputChangedEvent"; }
const char* InputChangedEventArgs::classType() { return "adsk::core::InputChangedEventArgs"; }
const char* LinearMarkingMenu::classType() { return "adsk::core::LinearMarkingMenu"; }
const char* ListItem::classType() { return "adsk::core::ListItem"; }
const char* ListItems::classType() { return "adsk::core::ListItems"; }
const char* MarkingMenuEvent::classType() { return "adsk::core::MarkingMenuEvent"; }
const char* MarkingMenuEventArgs::classType() { return "adsk::core::MarkingMenuEventArgs"; }
const char* NamedValues::classType() { return "adsk::core::NamedValues"; }
const char* Palette::classType() { return "adsk::core::Palette"; }
const char* Palettes::classType() { return "adsk::core::Palettes"; }
const char* Preferences::classType() { return "adsk::core::Preferences"; }
const char* ProgressDialog::classType() { return "adsk::core::ProgressDialog"; }
const char* RadialMarkingMenu::classType() { return "adsk::core::RadialMarkingMenu"; }
const char* RadioButtonGroupCommandInput::classType() {
    return "adsk::core::RadioButtonGroupCommandInput";
}
const char* Selection::classType() { return "adsk::core::Selection"; }
const char* SelectionCommandInput::classType() { return "adsk::core::SelectionCommandInput"; }
const char* Selections::classType() { return "adsk::core::Selections"; }
const char* StringValueCommandInput::classType() { return "adsk::core::StringValueCommandInput"; }
const char* TabCommandInput::classType() { return "adsk::core::TabCommandInput"; }
const char* TableCommandInput::classType() { return "adsk::core::TableCommandInput"; }
const char* TextBoxCommandInput::classType() { return "adsk::core::TextBoxCommandInput"; }
const char* ToolbarControl::classType() { return "adsk::core::ToolbarControl"; }
const char* ToolbarControls::classType() { return "adsk::core::ToolbarControls"; }
const char* ToolbarPanel::classType() { return "adsk::core::ToolbarPanel"; }
const char* ToolbarPanelList::classType() { return "adsk::core::ToolbarPanelList"; }
const char* ToolbarPanels::classType() { return "adsk::core::ToolbarPanels"; }
const char* ToolbarTab::classType() { return "adsk::core::ToolbarTab"; }
const char* ToolbarTabList::classType() { return "adsk::core::ToolbarTabList"; }
const char* ToolbarTabs::classType() { return "adsk::core::ToolbarTabs"; }
const char* UserInterface::classType() { return "adsk::core::UserInterface"; }
const char* ValidateInputsEvent::classType() { return "adsk::core::ValidateInputsEvent"; }
const char* ValidateInputsEventArgs::classType() { return "adsk::core::ValidateInputsEventArgs"; }
const char* Workspace::classType() { return "adsk::core::Workspace"; }
const char* WorkspaceEvent::classType() { return "adsk::core::WorkspaceEvent"; }
const char* WorkspaceEventArgs::classType() { return "adsk::core::WorkspaceEventArgs"; }
const char* Workspaces::classType() { return "adsk::core::Workspaces"; }

}  // namespace adsk::core
