#include "host/ui/dialogs/palettes.h"

#include "host/base/last_error.h"
#include "host/ui/toolbar/entries.h"

namespace host::ui {

bool PaletteObject::left(int value) {
    if (closed<"Palette::left">(*this)) return {};
    state.left = value;
    state.dockingState = core::PaletteDockStateFloating;
    return true;
}

bool PaletteObject::top(int value) {
    if (closed<"Palette::top">(*this)) return {};
    state.top = value;
    state.dockingState = core::PaletteDockStateFloating;
    return true;
}

bool PaletteObject::width(int value) {
    if (closed<"Palette::width">(*this)) return {};
    resize(value, state.height);
    return true;
}

bool PaletteObject::height(int value) {
    if (closed<"Palette::height">(*this)) return {};
    resize(state.width, value);
    return true;
}

bool PaletteObject::setPosition(int left, int top) {
    if (closed<"Palette::setPosition">(*this)) return {};
    state.left = left;
    state.top = top;
    state.dockingState = core::PaletteDockStateFloating;
    return true;
}

bool PaletteObject::setSize(int width, int height) {
    if (closed<"Palette::setSize">(*this)) return {};
    resize(width, height);
    return true;
}

// Docked to a side it is as high as the window, docked to the top or bottom as wide.
void PaletteObject::resize(int width, int height) {
    const core::PaletteDockingStates docked = state.dockingState;
    if (docked != core::PaletteDockStateTop && docked != core::PaletteDockStateBottom) {
        state.width = width;
    }
    if (docked != core::PaletteDockStateLeft && docked != core::PaletteDockStateRight) {
        state.height = height;
    }
}

bool PaletteObject::deleteMe() {
    if (closed<"Palette::deleteMe">(*this)) return {};
    owner_->remove(*this);
    return true;
}

void PaletteObject::dispose() {
    owner_ = nullptr;
    invalidate();
}

std::size_t PalettesObject::count() const {
    if (closed<"Palettes::count">(*this)) return {};
    return all_.size();
}

core::Ptr<core::Palette> PalettesObject::item(std::size_t index) const {
    if (closed<"Palettes::item">(*this)) return {};
    return entryAt(all_, index);
}

core::Ptr<core::Palette> PalettesObject::itemById(const std::string& id) const {
    if (closed<"Palettes::itemById">(*this)) return {};
    return find(id);
}

core::Ptr<core::Palette> PalettesObject::add(const std::string& id, const std::string& name,
                                             const std::string& htmlFileURL, bool isVisible,
                                             bool showCloseButton, bool isResizable, int width,
                                             int height, bool useNewWebBrowser) {
    constexpr const char* kOperation = "Palettes::add";
    if (closed<"Palettes::add">(*this)) return {};
    if (id.empty() || find(id)) {
        misuse(kOperation,
               id.empty() ? "a palette needs an id" : "the id \"" + id + "\" is in use");
        return {};
    }
    PaletteState state;
    state.id = id;
    state.name = name;
    state.htmlFileURL = htmlFileURL;
    state.visible = isVisible;
    state.closeButton = showCloseButton;
    state.resizable = isResizable;
    state.newWebBrowser = useNewWebBrowser;
    state.width = width;
    state.height = height;
    all_.push_back(make<PaletteObject>(this, state));
    return all_.back();
}

core::Ptr<PaletteObject> PalettesObject::find(const std::string& id) const {
    return entryOf(all_, id);
}

void PalettesObject::remove(PaletteObject& palette) {
    const core::Ptr<PaletteObject> kept(&palette);
    std::erase(all_, kept);
    palette.dispose();
}

void PalettesObject::dispose() {
    for (const core::Ptr<PaletteObject>& each : all_) {
        each->dispose();
    }
    all_.clear();
    invalidate();
}

}  // namespace host::ui
