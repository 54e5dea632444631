#include "tarnix/commands/online_models.h"

namespace tarnix {
namespace {

using namespace adsk::core;

constexpr const char* kPage = "http://www.tarnix.example/download/CAM/f360/fusion_pruvodce.htm";

/// The host's palettes, null where anything on the way is missing.
Ptr<Palettes> hostPalettes() {
    const Ptr<Application> application = Application::get();
    const Ptr<UserInterface> userInterface =
        application ? application->userInterface() : Ptr<UserInterface>();
    return userInterface ? userInterface->palettes() : Ptr<Palettes>();
}

void addPalette(const Ptr<Palettes>& palettes) {
    const Ptr<Palette> palette =
        palettes->add(kOnlineModelsPaletteId, "On-Line models", kPage, /*isVisible=*/true,
                      /*showCloseButton=*/true, /*isResizable=*/true, /*width=*/350, /*height=*/300,
                      /*useNewWebBrowser=*/false);
    palette->dockingState(PaletteDockStateLeft);
}

}  // namespace

void OnLineLibraryExecuteHandler::notify(const Ptr<CommandEventArgs>& /*eventArgs*/) {
    const Ptr<Palettes> palettes = hostPalettes();
    if (!palettes) {
        return;
    }
    if (const Ptr<Palette> palette = palettes->itemById(kOnlineModelsPaletteId)) {
        palette->isVisible(true);
    } else {
        addPalette(palettes);
    }
}

void OnLineLibraryCreateEventHandler::notify(const Ptr<CommandCreatedEventArgs>& eventArgs) {
    eventArgs->command()->execute()->add(&executeHandler_);
}

}  // namespace tarnix
