#pragma once

#include "host/ui/inputs/input_state.h"

#include <string>

namespace host::ui {

/// An input of the API over its state: what all kinds of inputs answer in the same way.
template <class Interface, class State = InputState>
class CommandInputObject : public Object<Interface>, public State {
public:
    using State::State;

    [[nodiscard]] core::CommandInput* api() override { return this; }

    void dispose() override {
        // The collection that lets go of it has one handle.
        if (this->references() > 1) {
            this->keepId();
        }
        State::dispose();
        this->invalidate();
    }

    [[nodiscard]] std::string id() const override {
        if (closed<"CommandInput::id">(*this)) return {};
        return State::id();
    }

    [[nodiscard]] std::string name() const override {
        return this->template get<"CommandInput::name">(State::name());
    }

    [[nodiscard]] bool isVisible() const override {
        return this->template get<"CommandInput::isVisible">(this->visible);
    }

    bool isVisible(bool value) override {
        if (closed<"CommandInput::isVisible">(*this)) return {};
        this->visible = value;
        this->visibilityChanged();
        return true;
    }

    [[nodiscard]] bool isEnabled() const override {
        return this->template get<"CommandInput::isEnabled">(this->enabled);
    }

    bool isEnabled(bool value) override {
        return this->template set<"CommandInput::isEnabled">(this->enabled, value);
    }

    [[nodiscard]] bool isFullWidth() const override {
        return this->template get<"CommandInput::isFullWidth">(this->fullWidth);
    }

    bool isFullWidth(bool value) override {
        return this->template set<"CommandInput::isFullWidth">(this->fullWidth, value);
    }

    [[nodiscard]] std::string tooltip() const override {
        return this->template get<"CommandInput::tooltip">(this->extras().tooltip);
    }

    bool tooltip(const std::string& value) override {
        if (closed<"CommandInput::tooltip">(*this)) return {};
        this->changeExtras().tooltip = value;
        return true;
    }

    [[nodiscard]] std::string tooltipDescription() const override {
        return this->template get<"CommandInput::tooltipDescription">(
            this->extras().tooltipDescription);
    }

    bool tooltipDescription(const std::string& value) override {
        if (closed<"CommandInput::tooltipDescription">(*this)) return {};
        this->changeExtras().tooltipDescription = value;
        return true;
    }

    [[nodiscard]] std::string toolClipFilename() const override {
        return this->template get<"CommandInput::toolClipFilename">(
            this->extras().toolClipFilename);
    }

    bool toolClipFilename(const std::string& value) override {
        if (closed<"CommandInput::toolClipFilename">(*this)) return {};
        this->changeExtras().toolClipFilename = value;
        return true;
    }

    [[nodiscard]] core::Ptr<core::CommandInputs> commandInputs() const override {
        if (closed<"CommandInput::commandInputs">(*this)) return {};
        return ownerOf(*this);
    }

    [[nodiscard]] core::Ptr<core::CommandInput> parentCommandInput() const override {
        if (closed<"CommandInput::parentCommandInput">(*this)) return {};
        InputState* parent = this->parent();
        return parent == nullptr ? nullptr : parent->api();
    }

    [[nodiscard]] core::Ptr<core::Command> parentCommand() const override {
        if (closed<"CommandInput::parentCommand">(*this)) return {};
        return commandOf(*this);
    }

    bool deleteMe() override {
        if (closed<"CommandInput::deleteMe">(*this)) return {};
        removeFromOwner(*this);
        return true;
    }

protected:
    /// Sets a value as the operation `Name`, and reports that code changed it.
    template <CallName Name, class T, class Value>
    bool change(T& member, const Value& value) {
        if (closed<Name>(*this)) return false;
        if (member != value) {
            member = value;
            this->changedByCode();
        }
        return true;
    }

    /// Reads a string of the command's pool as the operation `Name`.
    template <CallName Name>
    [[nodiscard]] std::string getShared(const std::string* const& member) const {
        if (closed<Name>(*this)) return {};
        return *member;
    }

    /// Sets a string of the command's pool as the operation `Name`.
    template <CallName Name>
    bool setShared(const std::string*& member, const std::string& value) {
        if (closed<Name>(*this)) return false;
        member = this->shared(value);
        return true;
    }
};

}  // namespace host::ui
