#include "tarnix/commands/online_models.h"

#include "tarnix/settings/web_addresses.h"

namespace tarnix {
namespace {

using namespace adsk::core;

/// The host's palettes, null where anything on the way is missing.
Ptr<Palettes> hostPalettes() {
    const Ptr<Application> application = Application::get();
    const Ptr<UserInterface> userInterface =
        application ? application->userInterface() : Ptr<UserInterface>();
    return userInterface ? userInterface->palettes() : Ptr<Palettes>();
}

void addPalette(const Ptr<Palettes>& palettes) {
    const Ptr<Palette> palette = palettes->add(
        kOnlineModelsPaletteId, "On-Line models", onlineModelsPage, /*isVisible=*/true,
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

}  // namespace tarnix
