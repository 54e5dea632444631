#pragma once

#include <Core/CoreAll.h>

#include <cstddef>
#include <cstdint>
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

/// What a selection asks for and has; of any other input it has nothing.
struct SelectionView {
    std::string prompt;
    std::vector<std::string> picked;  ///< the paths in the browser tree, empty for the root
    std::size_t minimum = 0;
    std::size_t maximum = 0;  ///< 0 for no limit
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
    int columns = 0;   ///< the number that the table was created with; cells may be beyond it
    int rowCount = 0;  ///< hidden rows counted
    int minimumRows = 0;
    int maximumRows = 0;
    int selectedRow = -1;
    std::string ratio;  ///< the widths of the columns, as they were set
    std::vector<int> shownColumns;
    std::vector<int> shownRows;
    std::vector<RowView> rows;  ///< none where they were not to be read
    std::vector<InputView> toolbar;
};

/// One input, whether the user can see it or not.
struct InputView {
    /// "Button", "ButtonRow", "CheckBox", "DropDown", "Group", "Image", "RadioButtonGroup",
    /// "Selection", "StringValue", "Tab", "Table" or "TextBox".
    std::string kind;
    std::uint32_t key = 0;  ///< of this input alone while the dialog is open, see `inputOfKey`
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
    bool fullWidth = false;
    bool multiple = false;  ///< several items can be selected
    int column = 0;         ///< of a cell
    int columnSpan = 0;     ///< of a cell: the columns to its right that it covers too
    std::string formatted;  ///< of a text box: the text as simple HTML
    int lines = 1;          ///< of a text box: how many it shows
    SelectionView selection;
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

/// Whether the rows of tables are read with a dialog: of a long table they cost most of the time.
/// Without them, inputs that left their table are skipped too, since they show nowhere.
enum class TableRows { Read, Skip };

/// Reads the open dialog at this moment; throws a `MisuseError` where none is open. No handler is
/// notified.
DialogView readDialog(TableRows rows = TableRows::Read);

/// Reads some rows of a table, by their numbers with hidden rows counted, in this order. Numbers
/// that the table does not have are skipped.
std::vector<RowView> readRows(const adsk::core::Ptr<adsk::core::TableCommandInput>& table,
                              const std::vector<int>& rows);

/// The input of the open dialog that has this key; null where there is none, and without a dialog.
adsk::core::Ptr<adsk::core::CommandInput> inputOfKey(std::uint32_t key);

/// The key of an input; 0, which none has, for null.
std::uint32_t keyOf(const adsk::core::Ptr<adsk::core::CommandInput>& input);

}  // namespace host
