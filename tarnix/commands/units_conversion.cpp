#include "tarnix/commands/units_conversion.h"

#include "tarnix/platform/top_windows.h"
#include "tarnix/settings/web_addresses.h"

#include <string>

namespace tarnix {
namespace {

using namespace adsk::core;
using platform::TopWindow;

constexpr const char* kHostTitle = "Autodesk Fusion 360";
constexpr int kWidth = 260;
constexpr int kHeight = 400;

// It ends 5 pixels inside the right edge of the window and 55 above the lower one.
constexpr int kFromRight = 265;
constexpr int kFromBottom = 455;

/// The palette of this command: the one that is there, shown again, else a new one. Null where the
/// host makes none.
Ptr<Palette> shownPalette(const Ptr<Palettes>& palettes) {
    Ptr<Palette> palette = palettes->itemById(kUnitsConversionPaletteId);
    if (palette) {
        palette->isVisible(true);
        return palette;
    }
    palette = palettes->add(kUnitsConversionPaletteId, "Units Conversion", unitsConversionPage,
                            /*isVisible=*/true,
                            /*showCloseButton=*/true, /*isResizable=*/true, kWidth, kHeight,
                            /*useNewWebBrowser=*/false);
    if (palette) {
        palette->dockingState(PaletteDockStateFloating);
    }
    return palette;
}

void putIntoCorner(const Ptr<Palette>& palette, const platform::ScreenArea& area) {
    palette->setPosition(area.right - kFromRight, area.bottom - kFromBottom);
    palette->setSize(kWidth, kHeight);
    palette->dockingOption(PaletteDockOptionsNone);
}

/// Looks at one window; false, with the palette shown in it, for the first with `needle` in its
/// title.
bool findHostWindow(const TopWindow& window, const std::string& needle) {
    if (window.title.find(needle) == std::string::npos) {
        return true;
    }
    const Ptr<Palettes> palettes = Application::get()->userInterface()->palettes();
    if (const Ptr<Palette> palette = shownPalette(palettes)) {
        putIntoCorner(palette, window.clientArea());
    }
    return false;
}

}  // namespace

void UnitsConversionCmdExecuteHandler::notify(const Ptr<CommandEventArgs>& /*eventArgs*/) {
    platform::visitTopWindows(
        [](const TopWindow& window) { return findHostWindow(window, kHostTitle); });
}

}  // namespace tarnix
