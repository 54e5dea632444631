#include "host/session/screen_view.h"

#include "host/session/user_action.h"

#include <Fusion/FusionAll.h>

namespace host {
namespace {

using core::Ptr;

const char* nameOf(core::PaletteDockingStates state) {
    switch (state) {
        case core::PaletteDockStateLeft:
            return "left";
        case core::PaletteDockStateRight:
            return "right";
        case core::PaletteDockStateTop:
            return "top";
        case core::PaletteDockStateBottom:
            return "bottom";
        default:
            return "floating";
    }
}

PaletteView readPalette(const ui::PaletteState& state) {
    return {.id = state.id,
            .name = state.name,
            .address = state.htmlFileURL,
            .dock = nameOf(state.dockingState),
            .left = state.left,
            .top = state.top,
            .width = state.width,
            .height = state.height,
            .closeButton = state.closeButton,
            .resizable = state.resizable};
}

}  // namespace

std::vector<PaletteView> readPalettes() {
    std::vector<PaletteView> views;
    for (const Ptr<ui::PaletteObject>& each : runningApplication().ui().state().palettes->all()) {
        if (each->state().visible) {
            views.push_back(readPalette(each->state()));
        }
    }
    return views;
}

std::vector<std::string> selectedPaths() {
    std::vector<std::string> paths;
    for (const Ptr<core::Base>& each :
         runningApplication().ui().state().selections->list.entities()) {
        paths.push_back(pathInBrowserTree(each));
    }
    return paths;
}

std::uint64_t editsOfDesign() { return runningApplication().editsOfModel(); }

std::string pathInBrowserTree(const Ptr<core::Base>& entity) {
    const Ptr<fusion::Occurrence> occurrence = entity;
    return occurrence ? occurrence->fullPathName() : "";
}

}  // namespace host
