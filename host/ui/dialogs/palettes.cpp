#include "host/ui/dialogs/palettes.h"

#include "host/base/last_error.h"
#include "host/ui/toolbar/entries.h"

namespace host::ui {

std::string PaletteObject::id() const {
    if (closed<"Palette::id">(*this)) return {};
    return state.id;
}

std::string PaletteObject::name() const {
    if (closed<"Palette::name">(*this)) return {};
    return state.name;
}

bool PaletteObject::name(const std::string& value) {
    if (closed<"Palette::name">(*this)) return {};
    state.name = value;
    return true;
}

std::string PaletteObject::htmlFileURL() const {
    if (closed<"Palette::htmlFileURL">(*this)) return {};
    return state.htmlFileURL;
}

bool PaletteObject::htmlFileURL(const std::string& value) {
    if (closed<"Palette::htmlFileURL">(*this)) return {};
    state.htmlFileURL = value;
    return true;
}

bool PaletteObject::isVisible() const {
    if (closed<"Palette::isVisible">(*this)) return {};
    return state.visible;
}

bool PaletteObject::isVisible(bool value) {
    if (closed<"Palette::isVisible">(*this)) return {};
    state.visible = value;
    return true;
}

core::PaletteDockingStates PaletteObject::dockingState() const {
    if (closed<"Palette::dockingState">(*this)) return {};
    return state.dockingState;
}

bool PaletteObject::dockingState(core::PaletteDockingStates value) {
    if (closed<"Palette::dockingState">(*this)) return {};
    state.dockingState = value;
    return true;
}

core::PaletteDockingOptions PaletteObject::dockingOption() const {
    if (closed<"Palette::dockingOption">(*this)) return {};
    return state.dockingOption;
}

bool PaletteObject::dockingOption(core::PaletteDockingOptions value) {
    if (closed<"Palette::dockingOption">(*this)) return {};
    state.dockingOption = value;
    return true;
}

int PaletteObject::left() const {
    if (closed<"Palette::left">(*this)) return {};
    return state.left;
}

bool PaletteObject::left(int value) {
    if (closed<"Palette::left">(*this)) return {};
    state.left = value;
    state.dockingState = core::PaletteDockStateFloating;
    return true;
}

int PaletteObject::top() const {
    if (closed<"Palette::top">(*this)) return {};
    return state.top;
}

bool PaletteObject::top(int value) {
    if (closed<"Palette::top">(*this)) return {};
    state.top = value;
    state.dockingState = core::PaletteDockStateFloating;
    return true;
}

int PaletteObject::width() const {
    if (closed<"Palette::width">(*this)) return {};
    return state.width;
}

bool PaletteObject::width(int value) {
    if (closed<"Palette::width">(*this)) return {};
    resize(value, state.height);
    return true;
}

int PaletteObject::height() const {
    if (closed<"Palette::height">(*this)) return {};
    return state.height;
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
