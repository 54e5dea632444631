#pragma once

#include "tarnix/text/command_texts.h"

#include <Core/CoreAll.h>

#include <memory>
#include <string>
#include <vector>

namespace tarnix {

/// One main command's registration in the host: its definition, the handler that answers it, and
/// the controls that were placed for it.
///
/// Making one makes the definition at once; destroying it takes everything out of the host again,
/// so a command lives exactly as long as its object.
class AddinCommand {
public:
    /// Registers the command of these texts with `application`.
    ///
    /// A host that refuses the definition leaves the object without one, silently. Without the
    /// definition's event a plain `std::exception` is thrown and nothing is left in the host.
    AddinCommand(const adsk::core::Ptr<adsk::core::Application>& application,
                 const CommandTexts& texts,
                 std::unique_ptr<adsk::core::CommandCreatedEventHandler> handler);
    AddinCommand(const AddinCommand&) = delete;
    AddinCommand& operator=(const AddinCommand&) = delete;
    ~AddinCommand();

    /// Makes the button definition and subscribes the handler; nothing when there is one already.
    ///
    /// There is no look-up first: an id that the host still holds is refused by it.
    void createDefinition();

    adsk::core::Ptr<adsk::core::CommandDefinition> commandDefinition;  ///< null until made
    adsk::core::Ptr<adsk::core::Application> app;
    adsk::core::Ptr<adsk::core::UserInterface> ui;
    std::string id;
    std::string name;
    std::string tooltip;
    std::string resourceFolder;
    std::unique_ptr<adsk::core::CommandCreatedEventHandler> createdHandler;

    /// The controls that were placed in panels for this command and go with it.
    std::vector<adsk::core::Ptr<adsk::core::CommandControl>> controls;

private:
    AddinCommand(const CommandTexts& texts,
                 std::unique_ptr<adsk::core::CommandCreatedEventHandler> handler);
};

}  // namespace tarnix
