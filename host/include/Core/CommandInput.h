#pragma once

#include <Core/Base.h>

#include <string>

namespace adsk::core {

class Command;
class CommandInputs;

/// One element of a command's dialog.
///
/// Setting a value, a text or a flag by code tells no handler.
class CommandInput : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual std::string id() const = 0;

    /// The label that stands before it.
    [[nodiscard]] virtual std::string name() const = 0;

    /// The input's own flag, true at first; that its tab, group or table row is not shown does not
    /// change it.
    [[nodiscard]] virtual bool isVisible() const = 0;
    virtual bool isVisible(bool value) = 0;

    /// Whether the user can change it, true at first. An input keeps its value while disabled or
    /// hidden.
    [[nodiscard]] virtual bool isEnabled() const = 0;
    virtual bool isEnabled(bool value) = 0;

    /// Whether it takes the width of the label too, false at first. No effect on a group or a tab.
    [[nodiscard]] virtual bool isFullWidth() const = 0;
    virtual bool isFullWidth(bool value) = 0;

    [[nodiscard]] virtual std::string tooltip() const = 0;
    virtual bool tooltip(const std::string& value) = 0;

    [[nodiscard]] virtual std::string tooltipDescription() const = 0;
    virtual bool tooltipDescription(const std::string& value) = 0;

    /// A picture file that the tooltip shows.
    [[nodiscard]] virtual std::string toolClipFilename() const = 0;
    virtual bool toolClipFilename(const std::string& value) = 0;

    /// The collection that it belongs to: of the command, of a tab or of a group. The cell of a
    /// table belongs to the collection that it was made in.
    [[nodiscard]] virtual Ptr<CommandInputs> commandInputs() const = 0;

    /// The table whose cell or toolbar input it is, else its tab or group; null at top level.
    [[nodiscard]] virtual Ptr<CommandInput> parentCommandInput() const = 0;

    [[nodiscard]] virtual Ptr<Command> parentCommand() const = 0;

    /// Takes it out of the dialog, and of the table that it stands in.
    virtual bool deleteMe() = 0;
};

/// A line of text that the user can edit.
class StringValueCommandInput : public CommandInput {
public:
    static const char* classType();

    [[nodiscard]] virtual std::string value() const = 0;
    virtual bool value(const std::string& value) = 0;

    /// False at first.
    [[nodiscard]] virtual bool isReadOnly() const = 0;
    virtual bool isReadOnly(bool value) = 0;
};

/// A check box, or a button whose value changes with each click.
class BoolValueCommandInput : public CommandInput {
public:
    static const char* classType();

    [[nodiscard]] virtual bool value() const = 0;
    virtual bool value(bool value) = 0;

    /// The folder with the pictures of the button, as it was given.
    [[nodiscard]] virtual std::string resourceFolder() const = 0;
    virtual bool resourceFolder(const std::string& value) = 0;

    [[nodiscard]] virtual bool isCheckBox() const = 0;

    /// The text on the button.
    [[nodiscard]] virtual std::string text() const = 0;
    virtual bool text(const std::string& value) = 0;
};

/// Text of one or more lines, plain or with simple HTML.
class TextBoxCommandInput : public CommandInput {
public:
    static const char* classType();

    /// The plain text. What is set is shown literally, and reads back equal.
    [[nodiscard]] virtual std::string text() const = 0;
    virtual bool text(const std::string& value) = 0;

    /// The text with its markup.
    [[nodiscard]] virtual std::string formattedText() const = 0;
    virtual bool formattedText(const std::string& value) = 0;

    /// The height in lines.
    [[nodiscard]] virtual int numRows() const = 0;
    virtual bool numRows(int value) = 0;

    [[nodiscard]] virtual bool isReadOnly() const = 0;
    virtual bool isReadOnly(bool value) = 0;
};

/// A picture.
class ImageCommandInput : public CommandInput {
public:
    static const char* classType();

    /// The file of the picture, as it was given.
    [[nodiscard]] virtual std::string imageFile() const = 0;
    virtual bool imageFile(const std::string& value) = 0;
};

/// One page of the dialog; the first one made is shown first.
class TabCommandInput : public CommandInput {
public:
    static const char* classType();

    [[nodiscard]] virtual Ptr<CommandInputs> children() const = 0;
    [[nodiscard]] virtual bool isActive() const = 0;

    /// Shows this page.
    virtual bool activate() = 0;

    [[nodiscard]] virtual std::string resourceFolder() const = 0;
};

/// Inputs under a heading that can be folded.
class GroupCommandInput : public CommandInput {
public:
    static const char* classType();

    [[nodiscard]] virtual Ptr<CommandInputs> children() const = 0;

    /// True at first.
    [[nodiscard]] virtual bool isExpanded() const = 0;
    virtual bool isExpanded(bool value) = 0;

    /// Whether the heading has a check box, false at first.
    [[nodiscard]] virtual bool isEnabledCheckBoxDisplayed() const = 0;
    virtual bool isEnabledCheckBoxDisplayed(bool value) = 0;

    [[nodiscard]] virtual bool isEnabledCheckBoxChecked() const = 0;
    virtual bool isEnabledCheckBoxChecked(bool value) = 0;
};

}  // namespace adsk::core
