#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// What the user of a page does, as docs/protocol.md lists it.
namespace workbench::serve {

/// An input of the dialog, by its key or its id.
using InputName = std::variant<std::uint32_t, std::string>;

/// An item of a list, by its name or its number.
using ItemName = std::variant<std::size_t, std::string>;

enum class ActionKind {
    Press,
    Click,
    Type,
    Paste,
    Choose,
    ActivateTab,
    SelectRow,
    Pick,
    SelectInModel,
    Clear,
    Ok,
    Cancel,
    Resize,
    Workspace,
    ClosePalette,
    MarkingMenu,
    AnswerMessage,
    AnswerFile,
    CancelProgress,
    View,
    Open,
    Save,
    ReloadAddin,
};

/// One action. Members that its kind does not have are empty.
struct Action {
    int page = 0;
    ActionKind kind = ActionKind::Ok;
    InputName input;
    ItemName item;
    std::string text;  ///< of `type` and `paste`; the command, id, path or answer of others
    std::vector<std::string> paths;                 ///< of `selectInModel`
    std::optional<std::vector<std::string>> files;  ///< of `answerFile`
    std::optional<std::string> file;                ///< of `open` and `save`
    int row = 0;
    int width = 0;
    int height = 0;
    int id = 0;  ///< of a message or a file dialog
    std::size_t from = 0;
    std::size_t count = 0;
    bool replace = false;  ///< of `save` and `answerFile`: a file that exists
    bool discard = false;  ///< of `open`: changes that are not saved
};

/// Reads the body of a request. Throws a `ProtocolError` of the status 400 that names the member
/// that is missing, unknown or of another type.
Action parseAction(std::string_view body);

}  // namespace workbench::serve
