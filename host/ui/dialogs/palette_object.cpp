#include "host/ui/dialogs/palette_object.h"

#include "host/ui/dialogs/palettes_object.h"

#include <exception>

namespace host::ui {

bool PaletteObject::left(int value) {
    if (closed<"left">(*this)) return {};
    return move(value, state_.top);
}

bool PaletteObject::top(int value) {
    if (closed<"top">(*this)) return {};
    return move(state_.left, value);
}

bool PaletteObject::width(int value) {
    if (closed<"width">(*this)) return {};
    return resize(value, state_.height);
}

bool PaletteObject::height(int value) {
    if (closed<"height">(*this)) return {};
    return resize(state_.width, value);
}

bool PaletteObject::setPosition(int left, int top) {
    if (closed<"setPosition">(*this)) return {};
    return move(left, top);
}

bool PaletteObject::setSize(int width, int height) {
    if (closed<"setSize">(*this)) return {};
    return resize(width, height);
}

// A docked palette that is moved floats.
bool PaletteObject::move(int left, int top) {
    state_.left = left;
    state_.top = top;
    state_.dockingState = core::PaletteDockStateFloating;
    return true;
}

// Docked to a side it is as high as the window, docked to the top or bottom as wide.
bool PaletteObject::resize(int width, int height) {
    const core::PaletteDockingStates docked = state_.dockingState;
    if (docked != core::PaletteDockStateTop && docked != core::PaletteDockStateBottom) {
        state_.width = width;
    }
    if (docked != core::PaletteDockStateLeft && docked != core::PaletteDockStateRight) {
        state_.height = height;
    }
    return true;
}

std::string PaletteObject::sendInfoToHTML(const std::string& action, const std::string& data) {
    if (closed<"sendInfoToHTML">(*this)) return {};
    sentToPage.push_back({.action = action, .data = data});
    if (!page) return {};
    const gate::Outside outside;
    try {
        return page({.action = action, .data = data});
    } catch (const std::exception& error) {
        // What the page does is not the module's: it must not end there.
        misuse("Palette::sendInfoToHTML", error.what());
        return {};
    }
}

std::string PaletteObject::sendFromPage(const PageMessage& message) {
    const auto arguments = make<HTMLEventArgsObject>(incomingEvent, message);
    incomingEvent->fire(arguments);
    return arguments->answer();
}

bool PaletteObject::deleteMe() {
    if (closed<"deleteMe">(*this)) return {};
    owner_->remove(*this);
    return true;
}

void PaletteObject::dispose() {
    incomingEvent->dispose();
    page = nullptr;
    owner_ = nullptr;
    invalidate();
}

}  // namespace host::ui
