#pragma once

#include <Core/Base.h>

#include <string>

namespace adsk::core {

class Command;
class CommandInputs;

/// One element of a command's dialog, valid until it is deleted or its command ends.
///
/// Changes made by code are shown at once and do not notify any handler, except for the selection
/// of an item (see `ListItem::isSelected`). An input keeps its value while disabled or hidden.
class CommandInput : public Base {
public:
    static const char* classType();  ///< "adsk::core::CommandInput"

    /// The id as it was given; only those of tabs are unique, and it may be empty.
    [[nodiscard]] virtual std::string id() const = 0;

    /// The label before the input, as it was given; fixed.
    [[nodiscard]] virtual std::string name() const = 0;

    /// The input's own flag, true at first. It does not reflect whether its tab is active, its
    /// group expanded or its table row shown.
    [[nodiscard]] virtual bool isVisible() const = 0;
    /// A selection input that is hidden loses what was selected in it.
    virtual bool isVisible(bool value) = 0;

    /// Whether the user can change it, true at first. For a selection input it is `hasFocus`.
    [[nodiscard]] virtual bool isEnabled() const = 0;
    /// For a selection input it moves the focus.
    virtual bool isEnabled(bool value) = 0;

    /// Whether it takes up the width of the label too, false at first.
    [[nodiscard]] virtual bool isFullWidth() const = 0;
    /// True for a group or a tab as well, but without effect there.
    virtual bool isFullWidth(bool value) = 0;

    /// What shows while the pointer rests on it; empty at first.
    [[nodiscard]] virtual std::string tooltip() const = 0;
    /// An empty string removes the tooltip.
    virtual bool tooltip(const std::string& value) = 0;

    /// The longer text below the tooltip; empty at first.
    [[nodiscard]] virtual std::string tooltipDescription() const = 0;
    /// Shown only together with a tooltip.
    virtual bool tooltipDescription(const std::string& value) = 0;

    /// The image file that the tooltip shows, as it was set; empty at first.
    [[nodiscard]] virtual std::string toolClipFilename() const = 0;
    /// The file is not checked.
    virtual bool toolClipFilename(const std::string& value) = 0;

    /// The collection that it belongs to: the command's, or the children of a tab or group. A cell
    /// of a table stays in the collection that it was created in.
    [[nodiscard]] virtual Ptr<CommandInputs> commandInputs() const = 0;

    /// The table in which it is a cell or a toolbar input, otherwise its tab or group; null at top
    /// level.
    [[nodiscard]] virtual Ptr<CommandInput> parentCommandInput() const = 0;

    /// The command of the dialog, at any depth; never null.
    [[nodiscard]] virtual Ptr<Command> parentCommand() const = 0;

    /// Removes it from its collection and from its table; this object is not valid afterwards.
    virtual bool deleteMe() = 0;
};

/// A line of text that the user can edit.
class StringValueCommandInput : public CommandInput {
public:
    static const char* classType();  ///< "adsk::core::StringValueCommandInput"

    /// The text as it is shown.
    [[nodiscard]] virtual std::string value() const = 0;
    /// Also possible while it is read-only.
    virtual bool value(const std::string& value) = 0;

    /// Whether the user can only read it, false at first.
    [[nodiscard]] virtual bool isReadOnly() const = 0;
    /// Does not keep code from setting the value.
    virtual bool isReadOnly(bool value) = 0;
};

/// A check box, or a button that toggles its value with each click.
class BoolValueCommandInput : public CommandInput {
public:
    static const char* classType();  ///< "adsk::core::BoolValueCommandInput"

    /// Whether the box is checked, or the state that the button's last click left.
    [[nodiscard]] virtual bool value() const = 0;
    /// To make each click of a button a change to true, set it back to false in the handler.
    virtual bool value(bool value) = 0;

    /// The folder of the icons, as it was set; empty for a check box or a button without icons.
    [[nodiscard]] virtual std::string resourceFolder() const = 0;
    /// The folder is not checked; a missing icon is no failure.
    virtual bool resourceFolder(const std::string& value) = 0;

    /// True for a check box, false for a button; fixed.
    [[nodiscard]] virtual bool isCheckBox() const = 0;

    /// The caption on the button; empty at first.
    [[nodiscard]] virtual std::string text() const = 0;
    /// Shown beside the icon, if there is one.
    virtual bool text(const std::string& value) = 0;
};

/// Text of one or more lines, plain or with simple HTML.
class TextBoxCommandInput : public CommandInput {
public:
    static const char* classType();  ///< "adsk::core::TextBoxCommandInput"

    /// The text without markup.
    [[nodiscard]] virtual std::string text() const = 0;
    /// Shown literally, including tags and entities, and read back unchanged.
    virtual bool text(const std::string& value) = 0;

    /// The text with its markup; after `text` was set, that text with its markup escaped.
    [[nodiscard]] virtual std::string formattedText() const = 0;
    /// Tags and known entities are interpreted; an "&" that begins no entity stays.
    virtual bool formattedText(const std::string& value) = 0;

    /// The height in lines.
    [[nodiscard]] virtual int numRows() const = 0;
    /// Longer texts scroll.
    virtual bool numRows(int value) = 0;

    /// Whether the user can only read it, as given when it was created.
    [[nodiscard]] virtual bool isReadOnly() const = 0;
    /// Does not keep code from setting the text.
    virtual bool isReadOnly(bool value) = 0;
};

/// A picture.
class ImageCommandInput : public CommandInput {
public:
    static const char* classType();  ///< "adsk::core::ImageCommandInput"

    /// The image file, exactly as it was set: absolute, or relative to the module's folder.
    [[nodiscard]] virtual std::string imageFile() const = 0;
    /// The file is not checked; a missing one is no failure.
    virtual bool imageFile(const std::string& value) = 0;
};

/// One page of the dialog. The tab that was created first is active first.
class TabCommandInput : public CommandInput {
public:
    static const char* classType();  ///< "adsk::core::TabCommandInput"

    /// The inputs on the tab; never null.
    [[nodiscard]] virtual Ptr<CommandInputs> children() const = 0;

    /// Whether the dialog shows this tab; of a dialog's tabs exactly one is active.
    [[nodiscard]] virtual bool isActive() const = 0;

    /// Shows this tab; no handler is notified.
    virtual bool activate() = 0;

    /// The folder of the tab's icons, as it was given; fixed.
    [[nodiscard]] virtual std::string resourceFolder() const = 0;
};

/// Inputs under a heading that can be collapsed.
class GroupCommandInput : public CommandInput {
public:
    static const char* classType();  ///< "adsk::core::GroupCommandInput"

    /// The inputs of the group; never null.
    [[nodiscard]] virtual Ptr<CommandInputs> children() const = 0;

    /// Whether its inputs show, true at first.
    [[nodiscard]] virtual bool isExpanded() const = 0;
    /// The flags of the inputs themselves do not change. False is refused for a group within
    /// another one whose heading has no check box.
    virtual bool isExpanded(bool value) = 0;

    /// Whether the heading has a check box, false at first.
    [[nodiscard]] virtual bool isEnabledCheckBoxDisplayed() const = 0;
    /// The state of the box is kept while it does not show.
    virtual bool isEnabledCheckBoxDisplayed(bool value) = 0;

    /// Whether the check box of the heading is checked.
    [[nodiscard]] virtual bool isEnabledCheckBoxChecked() const = 0;
    /// Kept also while the heading has no check box.
    virtual bool isEnabledCheckBoxChecked(bool value) = 0;
};

}  // namespace adsk::core
