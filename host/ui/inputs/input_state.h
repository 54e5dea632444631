#pragma once

#include "host/base/object.h"

#include <Core/CommandInputs.h>
#include <Core/Commands.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

/// What all inputs of a dialog have in common.
///
/// A dialog can hold millions of inputs, so an input carries only what it needs: captions are
/// shared through the command's pool, and what few inputs have is kept aside.
namespace host::ui {

class CommandObject;
class CommandInputsObject;
struct TableLine;

/// What an input is.
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

/// The state of an input, without its interface.
class InputState {
public:
    InputState(const InputOrigin& origin, InputKind inputKind);
    InputState(const InputState&) = delete;
    InputState& operator=(const InputState&) = delete;
    virtual ~InputState() = default;

    /// The state of an input of the API; null for null.
    static InputState* of(const core::Ptr<core::CommandInput>& input);

    /// This input as the API sees it.
    [[nodiscard]] virtual core::CommandInput* api() = 0;

    /// Ends the input: it leaves its table and its command forgets it. Its collection has let go of
    /// it, or is about to.
    virtual void dispose();

    /// Called when the flag for visibility was set.
    virtual void visibilityChanged() {}

    /// The collection inside a tab or a group, else null.
    [[nodiscard]] virtual CommandInputsObject* inside() const { return nullptr; }

    /// The command it belongs to; null once the command has ended.
    [[nodiscard]] CommandObject* command() const;

    /// The table it is in, else its tab or group; null at top level.
    [[nodiscard]] InputState* parent() const;

    /// Reports that code, not the user, changed its value.
    void changedByCode(CodeChange what = CodeChange::Value);

    [[nodiscard]] const std::string& id() const { return id_; }
    [[nodiscard]] const std::string& name() const { return *name_; }
    [[nodiscard]] CommandInputsObject* owner() const { return owner_; }

    /// @name Where collections and tables keep it
    /// @{
    InputState* nextSameId = nullptr;
    InputState* previousSameId = nullptr;  ///< of the first one: the last one
    TableLine* inLine = nullptr;           ///< its row, or the table's toolbar
    int inColumn = 0;
    std::uint32_t hash = 0;  ///< of its id
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
    /// The string in the command's pool.
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

}  // namespace host::ui
