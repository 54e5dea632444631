#pragma once

#include "host/base/object.h"

#include "host/ui/inputs/input_id.h"

#include <Core/CommandInputs.h>
#include <Core/Commands.h>

#include <cstddef>
#include <cstdint>
#include <string>

/// What all inputs of a dialog have in common.
///
/// A dialog can hold millions of inputs, so an input carries only what it needs: captions and ids
/// are shared through the command's pool, what few inputs have is kept aside, and the members are
/// in an order with few gaps.
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
    Number,
    Slider,
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
    virtual ~InputState();

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

    [[nodiscard]] std::string id() const { return id_.text(); }
    [[nodiscard]] const InputId& compactId() const { return id_; }
    [[nodiscard]] const std::string& name() const { return *name_; }
    [[nodiscard]] CommandInputsObject* owner() const { return owner_; }

    /// @name Where collections and tables keep it
    /// @{
    InputState* nextSameId = nullptr;
    InputState* previousSameId = nullptr;  ///< of the first one: the last one
    TableLine* inLine = nullptr;           ///< its row, or the table's toolbar
    std::uint32_t slot = 0;
    /// @}

    const std::uint32_t serial;  ///< counts the inputs of the command
    std::int16_t inColumn = -1;  ///< in its row; negative where no table ever had it
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
    /// Keeps the id when the command's pool may end before this: for an input that is disposed of
    /// while there are handles to it.
    void keepId();

    /// The string in the command's pool.
    [[nodiscard]] const std::string* shared(const std::string& text) const;

private:
    bool hasExtras_ = false;
    bool keepsId_ = false;  ///< the text of `id_` is its own
    const std::string* name_;
    CommandInputsObject* owner_;
    [[no_unique_address]] InputId id_;  ///< last: what derives from it begins in its gap
};

/// The collection that an input belongs to, and its command, as the API sees them.
core::Ptr<core::CommandInputs> ownerOf(const InputState& state);
core::Ptr<core::Command> commandOf(const InputState& state);

/// Takes an input out of its collection.
void removeFromOwner(InputState& state);

}  // namespace host::ui
