#pragma once

#include <string>
#include <vector>

/// All that a dialog consists of, as plain values: for programs that show a dialog, compare two, or
/// look for what is hidden in one. `table_view.h` has only what the user sees of a table.
namespace host {

/// An item of a list.
struct ItemView {
    std::string name;
    std::string icon;  ///< the folder, as it was set
    bool selected = false;

    bool operator==(const ItemView&) const = default;
};

struct InputView;

/// One row of a table, with its cells in the order of their columns.
struct RowView {
    int row = 0;  ///< of the table, hidden rows counted
    bool shown = false;
    bool selected = false;
    std::vector<InputView> cells;
};

/// The contents of a table; of any other input it has nothing.
struct TableContents {
    int columns = 0;    ///< the number that the table was created with; cells may be beyond it
    std::string ratio;  ///< the widths of the columns, as they were set
    std::vector<int> shownColumns;
    std::vector<RowView> rows;
    std::vector<InputView> toolbar;
};

/// One input, whether the user can see it or not.
struct InputView {
    /// "Button", "ButtonRow", "CheckBox", "DropDown", "Group", "Image", "RadioButtonGroup",
    /// "Selection", "StringValue", "Tab", "Table" or "TextBox".
    std::string kind;
    std::string id;
    std::string caption;
    std::string tooltip;

    /// A text; "true" or "false" of a button or check box; the names of the selected items or the
    /// paths of the picked entities, with ", " between them; else empty.
    std::string value;

    std::string text;     ///< on a button
    std::string picture;  ///< the image file, or the folder of the icons, as it was set
    std::vector<ItemView> items;
    bool visible = true;  ///< its own flag, whatever hides it from view
    bool enabled = true;
    bool readOnly = false;
    bool active = false;  ///< of a tab: it shows; of a group: it is expanded; of a selection: it
                          ///< has the focus
    int column = 0;       ///< of a cell
    std::vector<InputView> inputs;  ///< of a tab or a group, without cells and toolbar inputs
    TableContents table;
};

struct DialogView {
    std::string command;  ///< the id of its command
    std::string caption;
    int width = 0;  ///< in pixels; 0 by 0 where nothing gives it a size
    int height = 0;
    std::string okText;
    std::string cancelText;
    bool okVisible = true;
    std::string whyOkRefused;  ///< empty where OK can be pressed
    std::vector<InputView> inputs;
};

/// Reads the open dialog at this moment; throws a `MisuseError` where none is open. No handler is
/// notified.
DialogView readDialog();

}  // namespace host
