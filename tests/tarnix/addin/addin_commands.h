#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>

/// The commands that the add-in registers: one list for all tests that count or name them, and for
/// the check of the icons.
namespace test_support {

enum class Place { NoPanel, Tools, Helpdesk };

struct RegisteredCommand {
    const char* id;
    const char* name;
    const char* tooltip;
    const char* resourceFolder;
    Place place = Place::NoPanel;
    bool isPromoted = false;
};

/// The one command that `stop` leaves in the host.
inline constexpr const char* kOpenLocalFile = "QEMA_OpenLocalCmd_QAT";

/// In the order in which `run` makes them, and places them in each workspace.
inline constexpr RegisteredCommand kMainCommands[] = {
    {.id = "QEMA_EditPropertiesCmd",
     .name = "Edit custom properties",
     .tooltip = "Dialog for editing custom properties",
     .resourceFolder = "././Resources/Properties",
     .place = Place::Tools,
     .isPromoted = true},
    {.id = "QM_TX_BOM",
     .name = "BOM",
     .tooltip = "Bill of materials",
     .resourceFolder = "././Resources/BOM",
     .place = Place::Tools,
     .isPromoted = true},
    {.id = "QM_TX_moveComponentToOrigin",
     .name = "Move To Origin",
     .tooltip = "Move selected component to the origin",
     .resourceFolder = "././Resources/MoveComponentToOrigin",
     .place = Place::Tools},
    {.id = "QM_TX_projectedEntitiesAsConstruction",
     .name = "Projected Entities As Construction",
     .tooltip = "Set projected entities as construction geometry",
     .resourceFolder = "./Resources/ProjEntAsConstruction",
     .place = Place::Tools},
    {.id = "QM_TX_unitsConversion",
     .name = "Units Conversion",
     .tooltip = "A Unit converter for more than 750 types of international and historical physical "
                "measurement units: length, area, volume, time, mass, density, pressure, moment, "
                "power, flux, number systems, etc. ",
     .resourceFolder = "././Resources/UnitsConversion",
     .place = Place::Tools},
    {.id = "QM_TX_configuration",
     .name = "Tarnix Configuration",
     .tooltip = "Tarnix Configuration",
     .resourceFolder = "././Resources/Configuration",
     .place = Place::Helpdesk},
    {.id = "QM_TX_onLineLibrary",
     .name = "Models->F",
     .tooltip = "One step for insert on-Line models to the Fusion 360",
     .resourceFolder = "././Resources/OnLineLibrary"},
    {.id = kOpenLocalFile,
     .name = "Open local file",
     .tooltip = "Open / Import file from local storage",
     .resourceFolder = "././Resources/OpenLocalFile"}};

/// In the order in which `run` makes them, after the others, and places them in one workspace.
inline constexpr RegisteredCommand kHelpdeskCommands[] = {
    {.id = "QM_HD_openHelpdesk",
     .name = "Go to Helpdesk",
     .tooltip = "Open your Helpdesk web site",
     .resourceFolder = "Resources/OpenHelpdesk",
     .place = Place::Helpdesk,
     .isPromoted = true},
    {.id = "QM_HD_captureScreen",
     .name = "Capture screen",
     .tooltip = "Capture all what is visible on screen and save it on disk to the Helpdesk folder",
     .resourceFolder = "Resources/CaptureScreen",
     .place = Place::Helpdesk},
    {.id = "QM_HD_captureFusion",
     .name = "Capture Fusion",
     .tooltip =
         "Capture window of the Fusion application and save it on disk to the Helpdesk folder",
     .resourceFolder = "Resources/CaptureInventor",
     .place = Place::Helpdesk},
    {.id = "QM_HD_systemInfo",
     .name = "System info",
     .tooltip = "Save information about your system in a text file",
     .resourceFolder = "Resources/SaveSystemInfo",
     .place = Place::Helpdesk},
    {.id = "QM_HD_compressFolder",
     .name = "Zip",
     .tooltip = "Compress all context in the Helpdesk folder",
     .resourceFolder = "Resources/ZipFolder",
     .place = Place::Helpdesk},
    {.id = "QM_HD_openFolder",
     .name = "Open Helpdesk Folder",
     .tooltip = "Open the Helpdesk folder in Explorer",
     .resourceFolder = "Resources/OpenFolder",
     .place = Place::Helpdesk},
    {.id = "QM_HD_clearFolder",
     .name = "Delete Helpdesk Folder",
     .tooltip = "Delete all context in the Helpdesk folder",
     .resourceFolder = "Resources/DeleteFolder",
     .place = Place::Helpdesk},
    {.id = "QM_HD_openHelp",
     .name = "Open Help",
     .tooltip = "Open User Guide",
     .resourceFolder = "Resources/OpenHelp",
     .place = Place::Helpdesk,
     .isPromoted = true}};

inline constexpr std::size_t kMainCommandCount = std::size(kMainCommands);
inline constexpr std::size_t kCommandCount = kMainCommandCount + std::size(kHelpdeskCommands);

/// How many controls the main commands have in a workspace.
inline constexpr std::size_t kMainControlCount =
    kMainCommandCount -
    static_cast<std::size_t>(std::count_if(
        std::begin(kMainCommands), std::end(kMainCommands),
        [](const RegisteredCommand& command) { return command.place == Place::NoPanel; }));

}  // namespace test_support
