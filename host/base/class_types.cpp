#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

// Defined in the host's library alone: a module compares the pointers that `classType` and
// `objectType` return, so each name may exist only once in the process.
namespace adsk::core {

const char* Application::classType() { return "adsk::core::Application"; }
const char* ApplicationCommandEvent::classType() { return "adsk::core::ApplicationCommandEvent"; }
const char* ApplicationCommandEventArgs::classType() {
    return "adsk::core::ApplicationCommandEventArgs";
}
const char* Attribute::classType() { return "adsk::core::Attribute"; }
const char* Attributes::classType() { return "adsk::core::Attributes"; }
const char* Base::classType() { return "adsk::core::Base"; }
const char* BoolValueCommandInput::classType() { return "adsk::core::BoolValueCommandInput"; }
const char* BoundingBox3D::classType() { return "adsk::core::BoundingBox3D"; }
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
const char* Data::classType() { return "adsk::core::Data"; }
const char* DataFile::classType() { return "adsk::core::DataFile"; }
const char* DataFileFuture::classType() { return "adsk::core::DataFileFuture"; }
const char* DataFiles::classType() { return "adsk::core::DataFiles"; }
const char* DataFolder::classType() { return "adsk::core::DataFolder"; }
const char* DataFolders::classType() { return "adsk::core::DataFolders"; }
const char* DataProject::classType() { return "adsk::core::DataProject"; }
const char* Document::classType() { return "adsk::core::Document"; }
const char* Documents::classType() { return "adsk::core::Documents"; }
const char* DropDownCommandInput::classType() { return "adsk::core::DropDownCommandInput"; }
const char* Event::classType() { return "adsk::core::Event"; }
const char* EventArgs::classType() { return "adsk::core::EventArgs"; }
const char* FileDialog::classType() { return "adsk::core::FileDialog"; }
const char* FusionArchiveImportOptions::classType() {
    return "adsk::core::FusionArchiveImportOptions";
}
const char* GeneralPreferences::classType() { return "adsk::core::GeneralPreferences"; }
const char* GroupCommandInput::classType() { return "adsk::core::GroupCommandInput"; }
const char* IGESImportOptions::classType() { return "adsk::core::IGESImportOptions"; }
const char* ImageCommandInput::classType() { return "adsk::core::ImageCommandInput"; }
const char* ImportManager::classType() { return "adsk::core::ImportManager"; }
const char* ImportOptions::classType() { return "adsk::core::ImportOptions"; }
const char* InputChangedEvent::classType() { return "adsk::core::InputChangedEvent"; }
const char* InputChangedEventArgs::classType() { return "adsk::core::InputChangedEventArgs"; }
const char* LinearMarkingMenu::classType() { return "adsk::core::LinearMarkingMenu"; }
const char* ListItem::classType() { return "adsk::core::ListItem"; }
const char* ListItems::classType() { return "adsk::core::ListItems"; }
const char* MarkingMenuEvent::classType() { return "adsk::core::MarkingMenuEvent"; }
const char* MarkingMenuEventArgs::classType() { return "adsk::core::MarkingMenuEventArgs"; }
const char* Material::classType() { return "adsk::core::Material"; }
const char* Matrix3D::classType() { return "adsk::core::Matrix3D"; }
const char* NamedValues::classType() { return "adsk::core::NamedValues"; }
const char* Palette::classType() { return "adsk::core::Palette"; }
const char* Palettes::classType() { return "adsk::core::Palettes"; }
const char* Point3D::classType() { return "adsk::core::Point3D"; }
const char* Preferences::classType() { return "adsk::core::Preferences"; }
const char* Product::classType() { return "adsk::core::Product"; }
const char* ProgressDialog::classType() { return "adsk::core::ProgressDialog"; }
const char* RadialMarkingMenu::classType() { return "adsk::core::RadialMarkingMenu"; }
const char* RadioButtonGroupCommandInput::classType() {
    return "adsk::core::RadioButtonGroupCommandInput";
}
const char* SATImportOptions::classType() { return "adsk::core::SATImportOptions"; }
const char* SMTImportOptions::classType() { return "adsk::core::SMTImportOptions"; }
const char* STEPImportOptions::classType() { return "adsk::core::STEPImportOptions"; }
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

namespace adsk::fusion {

const char* Component::classType() { return "adsk::fusion::Component"; }
const char* Design::classType() { return "adsk::fusion::Design"; }
const char* FusionDocument::classType() { return "adsk::fusion::FusionDocument"; }
const char* Occurrence::classType() { return "adsk::fusion::Occurrence"; }
const char* OccurrenceList::classType() { return "adsk::fusion::OccurrenceList"; }
const char* Occurrences::classType() { return "adsk::fusion::Occurrences"; }
const char* PhysicalProperties::classType() { return "adsk::fusion::PhysicalProperties"; }
const char* Sketch::classType() { return "adsk::fusion::Sketch"; }
const char* SketchCurve::classType() { return "adsk::fusion::SketchCurve"; }
const char* SketchCurves::classType() { return "adsk::fusion::SketchCurves"; }
const char* SketchEntity::classType() { return "adsk::fusion::SketchEntity"; }

}  // namespace adsk::fusion
