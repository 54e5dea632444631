#pragma once

#include "tarnix/bom/model/bom_row.h"

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <vector>

namespace tarnix {

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
    /// Selects in the design what the row of a changed cell stands for: on the tab "Data of Model"
    /// its occurrence, on the tab "Structure" every occurrence of its part number under the same
    /// parent. On the third tab, and for a header cell, the selection stays as it is.
    void selectRowInDesign(adsk::core::Ptr<adsk::core::CommandInput> input,
                           adsk::core::Ptr<adsk::core::Product> product) const;

    std::vector<BomRow> rows;  ///< the plain walk of the last notification
};

}  // namespace tarnix
