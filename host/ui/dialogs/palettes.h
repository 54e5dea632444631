#pragma once

#include "host/base/object.h"

#include <Core/Palettes.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace host::ui {

class PalettesObject;

/// What a palette shows and where it stands, in pixels.
struct PaletteState {
    std::string id;
    std::string name;
    std::string htmlFileURL;
    bool visible = true;
    bool closeButton = true;
    bool resizable = true;
    bool newWebBrowser = false;  ///< which of the host's browsers shows the page
    core::PaletteDockingStates dockingState = core::PaletteDockStateFloating;
    core::PaletteDockingOptions dockingOption = core::PaletteDockOptionsToVerticalAndHorizontal;
    int left = 0;
    int top = 0;
    int width = 200;
    int height = 200;
};

class PaletteObject final : public Object<core::Palette> {
public:
    PaletteObject(PalettesObject* owner, PaletteState initial)
        : state(std::move(initial)), owner_(owner) {}

    [[nodiscard]] std::string id() const override { return get<"Palette::id">(state.id); }
    [[nodiscard]] std::string name() const override { return get<"Palette::name">(state.name); }
    bool name(const std::string& value) override { return set<"Palette::name">(state.name, value); }
    [[nodiscard]] std::string htmlFileURL() const override {
        return get<"Palette::htmlFileURL">(state.htmlFileURL);
    }
    bool htmlFileURL(const std::string& value) override {
        return set<"Palette::htmlFileURL">(state.htmlFileURL, value);
    }
    [[nodiscard]] bool isVisible() const override {
        return get<"Palette::isVisible">(state.visible);
    }
    bool isVisible(bool value) override { return set<"Palette::isVisible">(state.visible, value); }
    [[nodiscard]] core::PaletteDockingStates dockingState() const override {
        return get<"Palette::dockingState">(state.dockingState);
    }
    bool dockingState(core::PaletteDockingStates value) override {
        return set<"Palette::dockingState">(state.dockingState, value);
    }
    [[nodiscard]] core::PaletteDockingOptions dockingOption() const override {
        return get<"Palette::dockingOption">(state.dockingOption);
    }
    bool dockingOption(core::PaletteDockingOptions value) override {
        return set<"Palette::dockingOption">(state.dockingOption, value);
    }
    [[nodiscard]] int left() const override { return get<"Palette::left">(state.left); }
    bool left(int value) override;
    [[nodiscard]] int top() const override { return get<"Palette::top">(state.top); }
    bool top(int value) override;
    [[nodiscard]] int width() const override { return get<"Palette::width">(state.width); }
    bool width(int value) override;
    [[nodiscard]] int height() const override { return get<"Palette::height">(state.height); }
    bool height(int value) override;
    bool setPosition(int left, int top) override;
    bool setSize(int width, int height) override;
    bool deleteMe() override;

    [[nodiscard]] const std::string& identifier() const { return state.id; }
    void dispose();

    PaletteState state;

private:
    void resize(int width, int height);

    PalettesObject* owner_;
};

class PalettesObject final : public Object<core::Palettes> {
public:
    PalettesObject() = default;

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::Palette> item(std::size_t index) const override;
    [[nodiscard]] core::Ptr<core::Palette> itemById(const std::string& id) const override;
    core::Ptr<core::Palette> add(const std::string& id, const std::string& name,
                                 const std::string& htmlFileURL, bool isVisible,
                                 bool showCloseButton, bool isResizable, int width, int height,
                                 bool useNewWebBrowser) override;

    [[nodiscard]] const std::vector<core::Ptr<PaletteObject>>& all() const { return all_; }
    [[nodiscard]] core::Ptr<PaletteObject> find(const std::string& id) const;
    void remove(PaletteObject& palette);
    void dispose();

private:
    std::vector<core::Ptr<PaletteObject>> all_;
};

}  // namespace host::ui
