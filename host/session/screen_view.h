#pragma once

#include <Core/Base.h>

#include <cstdint>
#include <string>
#include <vector>

/// What the running host shows beside toolbars and dialogs, as plain values. Each function throws a
/// `MisuseError` where no host runs.
namespace host {

/// A palette that is visible.
struct PaletteView {
    std::string id;
    std::string name;
    std::string address;  ///< of its page, as it was set
    std::string dock;     ///< "floating", "left", "right", "top" or "bottom"
    int left = 0;         ///< in pixels, as the others
    int top = 0;
    int width = 0;
    int height = 0;
    bool closeButton = true;
    bool resizable = true;
};

/// The palettes on the screen, in the order of their creation.
std::vector<PaletteView> readPalettes();

/// The paths of what is selected, in the order of selection.
std::vector<std::string> selectedPaths();

/// How often the open design was changed since it was opened.
std::uint64_t editsOfDesign();

/// Where an entity is in the browser tree: the full path name of an occurrence, an empty string for
/// the root component and for what is not in the tree.
std::string pathInBrowserTree(const adsk::core::Ptr<adsk::core::Base>& entity);

}  // namespace host
