#include "host/ui/dialogs/palettes.h"

#include "host/base/last_error.h"
#include "host/ui/toolbar/entries.h"

namespace host::ui {

std::string Palette::id() const {
    if (closed<"Palette::id">(*this)) return {};
    return state.id;
}

std::string Palette::name() const {
    if (closed<"Palette::name">(*this)) return {};
    return state.name;
}

bool Palette::name(const std::string& value) {
    if (closed<"Palette::name">(*this)) return {};
    state.name = value;
    return true;
}

std::string Palette::htmlFileURL() const {
    if (closed<"Palette::htmlFileURL">(*this)) return {};
    return state.htmlFileURL;
}

bool Palette::htmlFileURL(const std::string& value) {
    if (closed<"Palette::htmlFileURL">(*this)) return {};
    state.htmlFileURL = value;
    return true;
}

bool Palette::isVisible() const {
    if (closed<"Palette::isVisible">(*this)) return {};
    return state.visible;
}

bool Palette::isVisible(bool value) {
    if (closed<"Palette::isVisible">(*this)) return {};
    state.visible = value;
    return true;
}

core::PaletteDockingStates Palette::dockingState() const {
    if (closed<"Palette::dockingState">(*this)) return {};
    return state.dockingState;
}

bool Palette::dockingState(core::PaletteDockingStates value) {
    if (closed<"Palette::dockingState">(*this)) return {};
    state.dockingState = value;
    return true;
}

core::PaletteDockingOptions Palette::dockingOption() const {
    if (closed<"Palette::dockingOption">(*this)) return {};
    return state.dockingOption;
}

bool Palette::dockingOption(core::PaletteDockingOptions value) {
    if (closed<"Palette::dockingOption">(*this)) return {};
    state.dockingOption = value;
    return true;
}

int Palette::left() const {
    if (closed<"Palette::left">(*this)) return {};
    return state.left;
}

bool Palette::left(int value) {
    if (closed<"Palette::left">(*this)) return {};
    state.left = value;
    state.dockingState = core::PaletteDockStateFloating;
    return true;
}

int Palette::top() const {
    if (closed<"Palette::top">(*this)) return {};
    return state.top;
}

bool Palette::top(int value) {
    if (closed<"Palette::top">(*this)) return {};
    state.top = value;
    state.dockingState = core::PaletteDockStateFloating;
    return true;
}

int Palette::width() const {
    if (closed<"Palette::width">(*this)) return {};
    return state.width;
}

bool Palette::width(int value) {
    if (closed<"Palette::width">(*this)) return {};
    resize(value, state.height);
    return true;
}

int Palette::height() const {
    if (closed<"Palette::height">(*this)) return {};
    return state.height;
}

bool Palette::height(int value) {
    if (closed<"Palette::height">(*this)) return {};
    resize(state.width, value);
    return true;
}

bool Palette::setPosition(int left, int top) {
    if (closed<"Palette::setPosition">(*this)) return {};
    state.left = left;
    state.top = top;
    state.dockingState = core::PaletteDockStateFloating;
    return true;
}

bool Palette::setSize(int width, int height) {
    if (closed<"Palette::setSize">(*this)) return {};
    resize(width, height);
    return true;
}

// Docked to a side it is as high as the window, docked to the top or bottom as wide.
void Palette::resize(int width, int height) {
    const core::PaletteDockingStates docked = state.dockingState;
    if (docked != core::PaletteDockStateTop && docked != core::PaletteDockStateBottom) {
        state.width = width;
    }
    if (docked != core::PaletteDockStateLeft && docked != core::PaletteDockStateRight) {
        state.height = height;
    }
}

bool Palette::deleteMe() {
    if (closed<"Palette::deleteMe">(*this)) return {};
    owner_->remove(*this);
    return true;
}

void Palette::dispose() {
    owner_ = nullptr;
    invalidate();
}

std::size_t Palettes::count() const {
    if (closed<"Palettes::count">(*this)) return {};
    return all_.size();
}

core::Ptr<core::Palette> Palettes::item(std::size_t index) const {
    if (closed<"Palettes::item">(*this)) return {};
    return entryAt(all_, index);
}

core::Ptr<core::Palette> Palettes::itemById(const std::string& id) const {
    if (closed<"Palettes::itemById">(*this)) return {};
    return find(id);
}

core::Ptr<core::Palette> Palettes::add(const std::string& id, const std::string& name,
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
    all_.push_back(make<Palette>(this, state));
    return all_.back();
}

core::Ptr<Palette> Palettes::find(const std::string& id) const { return entryOf(all_, id); }

void Palettes::remove(Palette& palette) {
    const core::Ptr<Palette> kept(&palette);
    std::erase(all_, kept);
    palette.dispose();
}

void Palettes::dispose() {
    for (const core::Ptr<Palette>& each : all_) {
        each->dispose();
    }
    all_.clear();
    invalidate();
}

}  // namespace host::ui
