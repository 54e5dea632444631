#pragma once

#include "tarnix/bom/model/bom_row.h"
#include "tarnix/text/command_texts.h"

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <vector>

/// The command "BOM": its dialog shows the bill of materials of the active design in three tabs.
///
/// The host starts the command, and the created handler builds the dialog; each change of an input
/// comes to the input-changed handler, which finds out from its id what it means; "Save Changes and
/// Close" comes to the execute handler, which writes the table that shows into the design. After
/// that a hook (`addin/hooks.h`) starts the command again.
namespace tarnix {

inline constexpr CommandTexts kBomCommand = {.id = "QM_TX_BOM",
                                             .name = "BOM",
                                             .tooltip = "Bill of materials",
                                             .resourceFolder = "././Resources/BOM"};

/// What the open BOM dialog does about a change of any of its inputs.
///
/// The id of the changed input is the whole routing key. Nothing is remembered between two
/// notifications: each walks the design again, finds tabs and tables again by id, and lets what is
/// thrown pass on to the host, which keeps the dialog open.
class BomCmdInputChangedHandler final : public adsk::core::InputChangedEventHandler {
public:
    /// Walks the active design, does what the changed input asks for, and follows it up with the
    /// reaction to drop-downs and the selection in the design. A change of the tab has no
    /// follow-up.
    ///
    /// Without an input or an active design nothing happens.
    void notify(const adsk::core::Ptr<adsk::core::InputChangedEventArgs>& eventArgs) override;

private:
    /// Selects in the design what the row of a changed cell shows: on the tab "Data of Model" its
    /// occurrence, on the tab "Structure" every occurrence of its part number under the same
    /// parent. On the third tab, and for a header cell, the selection stays as it is.
    void selectRowInDesign(adsk::core::Ptr<adsk::core::CommandInput> input,
                           adsk::core::Ptr<adsk::core::Product> product) const;

    /// The plain walk of the last notification, without properties.
    std::vector<BomRow> rows;
};

/// Answers "Save Changes and Close" of the BOM dialog.
class BomCmdExecuteHandler final : public adsk::core::CommandEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs) override;
};

/// Answers the start of the command "BOM": makes its dialog and attaches the handlers that serve
/// it.
///
/// One object, made when the command is registered, serves every opening of the dialog. The host is
/// given addresses inside it.
class BomCmdCreateEventHandler final : public adsk::core::CommandCreatedEventHandler {
public:
    /// Builds the dialog, then sets its size, attaches the handlers and names its buttons, so that
    /// all of these are left out when the building throws.
    void notify(const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& eventArgs) override;

private:
    BomCmdInputChangedHandler inputChangedHandler;
    BomCmdExecuteHandler executeHandler;
    BomModel model;  ///< of the last opening; its rows lose their properties once they are shown
};

/// Walks the active design into `model` and builds the three tabs of the BOM dialog: "Data of
/// Model", "Structure", "BOM Configuration".
///
/// The rows are new, the names of custom properties stay and grow. With a product that is no
/// design, or none, the dialog gets no tabs, and there is no message. A refused input throws a
/// plain `std::exception`, as the tabs say.
void buildBomDialog(BomModel& model, adsk::core::Ptr<adsk::core::CommandInputs> inputs);

}  // namespace tarnix
