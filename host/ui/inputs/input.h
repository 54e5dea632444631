#pragma once

#include "host/base/object.h"

#include <Core/CommandInputs.h>
#include <Core/Commands.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>

/// What all inputs of a dialog have in common.
///
/// A dialog can hold millions of inputs, so an input carries only what it needs: captions are
/// shared through the command's pool, and what few inputs have is kept aside.
namespace host::ui {

class CommandObject;
class CommandInputsObject;
struct TableLine;

/// What an input is, for those who tell the kinds apart.
enum class InputKind : std::uint8_t {
    String,
    Bool,
    TextBox,
    Image,
    Tab,
    Group,
    DropDown,
    ButtonRow,
    RadioGroup,
    Table,
    Selection,
    TabBar,
};

/// What code can do to the value of an input.
enum class CodeChange : std::uint8_t {
    Value,     ///< set it
    Selected,  ///< selected an item of its list
};

/// Where a new input belongs and what it is called.
struct InputOrigin {
    CommandInputsObject* owner = nullptr;
    const std::string* id = nullptr;
    const std::string* name = nullptr;  ///< of the command's pool
};

/// The state of an input behind its interface.
class InputState {
public:
    InputState(const InputOrigin& origin, InputKind inputKind);
    InputState(const InputState&) = delete;
    InputState& operator=(const InputState&) = delete;
    virtual ~InputState() = default;

    /// The state behind an input of the API; null for null.
    static InputState* of(const core::Ptr<core::CommandInput>& input);

    /// This input as the API sees it.
    [[nodiscard]] virtual core::CommandInput* api() = 0;

    /// Takes the input out of its dialog for good: its owner has let go of it, or is about to.
    virtual void retire();

    /// Called when the flag for visibility was set.
    virtual void visibilityChanged() {}

    /// The collection inside a tab or a group, else null.
    [[nodiscard]] virtual CommandInputsObject* inside() const { return nullptr; }

    /// The command it belongs to; null once the command is over.
    [[nodiscard]] CommandObject* command() const;

    /// The table it stands in, else its tab or group; null at top level.
    [[nodiscard]] InputState* parent() const;

    /// Notes that code, not a person, changed its value.
    void changedByCode(CodeChange what = CodeChange::Value);

    [[nodiscard]] const std::string& id() const { return id_; }
    [[nodiscard]] const std::string& name() const { return *name_; }
    [[nodiscard]] CommandInputsObject* owner() const { return owner_; }

    /// @name Where collections and tables keep it
    /// @{
    InputState* nextSameId = nullptr;
    InputState* previousSameId = nullptr;  ///< of the first one: the last one
    TableLine* inLine = nullptr;           ///< the row that it stands in, or the table's toolbar
    int inColumn = 0;
    std::uint32_t hash = 0;
    std::uint32_t slot = 0;
    /// @}

    const std::uint32_t serial;  ///< counts the inputs of the command
    const InputKind kind;
    bool visible = true;
    bool enabled = true;
    bool fullWidth = false;

    /// What few inputs have.
    struct Extras {
        std::string tooltip;
        std::string tooltipDescription;
        std::string toolClipFilename;
        int columnSpan = 0;
    };
    [[nodiscard]] const Extras& extras() const;
    Extras& changeExtras();

protected:
    /// The text in the command's pool.
    [[nodiscard]] const std::string* shared(const std::string& text) const;

private:
    std::string id_;
    const std::string* name_;
    CommandInputsObject* owner_;
    std::unique_ptr<Extras> extras_;
};

/// The collection that an input belongs to, and its command, as the API sees them.
core::Ptr<core::CommandInputs> ownerOf(const InputState& state);
core::Ptr<core::Command> commandOf(const InputState& state);

/// Takes an input out of its collection.
void removeFromOwner(InputState& state);

/// An input of the API over its state.
template <class Interface, class State = InputState>
class CommandInputObject : public Object<Interface>, public State {
public:
    using State::State;

    [[nodiscard]] core::CommandInput* api() override { return this; }

    void retire() override {
        State::retire();
        this->invalidate();
    }

    [[nodiscard]] std::string id() const override {
        if (closed<"CommandInput::id">(*this)) return {};
        return State::id();
    }

    [[nodiscard]] std::string name() const override {
        if (closed<"CommandInput::name">(*this)) return {};
        return State::name();
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
};

}  // namespace host::ui
