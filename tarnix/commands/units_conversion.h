#pragma once

#include "tarnix/commands/command_without_dialog.h"
#include "tarnix/text/command_texts.h"

#include <Core/CoreAll.h>

namespace tarnix {

inline constexpr CommandTexts kUnitsConversionCommand = {
    .id = "QM_TX_unitsConversion",
    .name = "Units Conversion",
    .tooltip =
        "A Unit converter for more than 750 types of international and historical physical "
        "measurement "
        "units: length, area, volume, time, mass, density, pressure, moment, power, flux, number "
        "systems, etc. ",
    .resourceFolder = "././Resources/UnitsConversion"};

/// The id of its palette, which outlives the command.
inline constexpr const char* kUnitsConversionPaletteId = "unitsConversion";

/// Carries out "Units Conversion": shows the palette with the converter in the lower right corner
/// of the host's main window, wherever the user had moved it.
///
/// The foremost window with the host's name in its title is taken for that window; where none has
/// it, nothing happens.
class UnitsConversionCmdExecuteHandler final : public adsk::core::CommandEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs) override;
};

/// Answers the start of the command "Units Conversion", which has no dialog.
class UnitsConversionCmdCreateEventHandler final
    : public CommandWithoutDialog<UnitsConversionCmdExecuteHandler> {};

}  // namespace tarnix
