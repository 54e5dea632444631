#pragma once

#include "host/base/events.h"
#include "host/base/object.h"
#include "host/ui/dialogs/page_message.h"

#include <Core/Palettes.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace host::ui {

class PalettesObject;

/// What a palette shows and where it is, in pixels.
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

class HTMLEventArgsObject final : public Arguments<core::HTMLEventArgs> {
public:
    HTMLEventArgsObject(core::Ptr<core::Event> event, PageMessage message)
        : Arguments(std::move(event)), message_(std::move(message)) {}

    [[nodiscard]] std::string action() const override { return get<"action">(message_.action); }
    [[nodiscard]] std::string data() const override { return get<"data">(message_.data); }
    [[nodiscard]] std::string returnData() const override { return get<"returnData">(returnData_); }
    bool returnData(const std::string& value) override {
        return set<"returnData">(returnData_, value);
    }

    /// What the page gets.
    [[nodiscard]] const std::string& answer() const { return returnData_; }

private:
    PageMessage message_;
    std::string returnData_;
};

using HTMLEventObject = TypedEvent<core::HTMLEvent>;

class PaletteObject final : public Object<core::Palette> {
public:
    PaletteObject(PalettesObject* owner, PaletteState state)
        : owner_(owner), state_(std::move(state)) {}

    [[nodiscard]] std::string id() const override { return get<"id">(state_.id); }
    [[nodiscard]] std::string name() const override { return get<"name">(state_.name); }
    bool name(const std::string& value) override { return set<"name">(state_.name, value); }
    [[nodiscard]] std::string htmlFileURL() const override {
        return get<"htmlFileURL">(state_.htmlFileURL);
    }
    bool htmlFileURL(const std::string& value) override {
        return set<"htmlFileURL">(state_.htmlFileURL, value);
    }
    [[nodiscard]] bool isVisible() const override { return get<"isVisible">(state_.visible); }
    bool isVisible(bool value) override { return set<"isVisible">(state_.visible, value); }
    [[nodiscard]] core::PaletteDockingStates dockingState() const override {
        return get<"dockingState">(state_.dockingState);
    }
    bool dockingState(core::PaletteDockingStates value) override {
        return set<"dockingState">(state_.dockingState, value);
    }
    [[nodiscard]] core::PaletteDockingOptions dockingOption() const override {
        return get<"dockingOption">(state_.dockingOption);
    }
    bool dockingOption(core::PaletteDockingOptions value) override {
        return set<"dockingOption">(state_.dockingOption, value);
    }
    [[nodiscard]] int left() const override { return get<"left">(state_.left); }
    bool left(int value) override;
    [[nodiscard]] int top() const override { return get<"top">(state_.top); }
    bool top(int value) override;
    [[nodiscard]] int width() const override { return get<"width">(state_.width); }
    bool width(int value) override;
    [[nodiscard]] int height() const override { return get<"height">(state_.height); }
    bool height(int value) override;
    bool setPosition(int left, int top) override;
    bool setSize(int width, int height) override;
    [[nodiscard]] core::Ptr<core::HTMLEvent> incomingFromHTML() const override {
        return get<"incomingFromHTML">(incomingEvent);
    }
    std::string sendInfoToHTML(const std::string& action, const std::string& data) override;
    bool deleteMe() override;

    [[nodiscard]] const PaletteState& state() const { return state_; }

    /// Hides it with the button in its corner, as the user does.
    void close() { state_.visible = false; }
    void dispose();

    /// The page sends something to the module; what it gets as the answer.
    std::string sendFromPage(const PageMessage& message);

    /// What answers in the place of the page; none where nothing does.
    std::function<std::string(const PageMessage&)> page;

    std::vector<PageMessage> sentToPage;  ///< by the module, oldest first

    const core::Ptr<HTMLEventObject> incomingEvent =
        make<HTMLEventObject>("OnIncomingFromHTML", this);

private:
    bool move(int left, int top);
    bool resize(int width, int height);

    PalettesObject* owner_;
    PaletteState state_;
};

}  // namespace host::ui
