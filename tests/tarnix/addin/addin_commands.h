#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>

/// The commands that the add-in registers: one list for all tests that count or name them.
namespace test_support {

enum class Place { NoPanel, Tools, Helpdesk };

struct AddinCommandId {
    const char* id;
    Place place = Place::NoPanel;
    bool isPromoted = false;
};

/// The one command that `stop` leaves in the host.
inline constexpr const char* kOpenLocalFile = "QEMA_OpenLocalCmd_QAT";

/// In the order in which `run` makes them, and places them in each workspace.
inline constexpr AddinCommandId kMainCommands[] = {
    {.id = "QEMA_EditPropertiesCmd", .place = Place::Tools, .isPromoted = true},
    {.id = "QM_TX_BOM", .place = Place::Tools, .isPromoted = true},
    {.id = "QM_TX_moveComponentToOrigin", .place = Place::Tools},
    {.id = "QM_TX_projectedEntitiesAsConstruction", .place = Place::Tools},
    {.id = "QM_TX_unitsConversion", .place = Place::Tools},
    {.id = "QM_TX_configuration", .place = Place::Helpdesk},
    {.id = "QM_TX_onLineLibrary"},
    {.id = kOpenLocalFile}};

/// In the order in which `run` makes them, after the others, and places them in one workspace.
inline constexpr AddinCommandId kHelpdeskCommands[] = {
    {.id = "QM_HD_openHelpdesk", .place = Place::Helpdesk, .isPromoted = true},
    {.id = "QM_HD_captureScreen", .place = Place::Helpdesk},
    {.id = "QM_HD_captureFusion", .place = Place::Helpdesk},
    {.id = "QM_HD_systemInfo", .place = Place::Helpdesk},
    {.id = "QM_HD_compressFolder", .place = Place::Helpdesk},
    {.id = "QM_HD_openFolder", .place = Place::Helpdesk},
    {.id = "QM_HD_clearFolder", .place = Place::Helpdesk},
    {.id = "QM_HD_openHelp", .place = Place::Helpdesk, .isPromoted = true}};

inline constexpr std::size_t kMainCommandCount = std::size(kMainCommands);
inline constexpr std::size_t kCommandCount = kMainCommandCount + std::size(kHelpdeskCommands);

/// How many controls the main commands have in a workspace.
inline constexpr std::size_t kMainControlCount =
    kMainCommandCount -
    static_cast<std::size_t>(std::count_if(
        std::begin(kMainCommands), std::end(kMainCommands),
        [](const AddinCommandId& command) { return command.place == Place::NoPanel; }));

}  // namespace test_support
