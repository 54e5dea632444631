#include "workbench/output/dialog_text.h"

#include "workbench/output/display_text.h"
#include "workbench/output/text_table.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace workbench {
namespace {

constexpr std::size_t kStep = 2;  // spaces for each level of the outline

std::string margin(std::size_t depth) { return std::string(depth * kStep, ' '); }

std::string quote(const std::string& text) { return "\"" + printable(text) + "\""; }

/// The words in parentheses; an empty string for none.
std::string remarks(const std::vector<std::string>& words) {
    std::string all;
    for (const std::string& word : words) {
        all += (all.empty() ? " (" : ", ") + word;
    }
    return all.empty() ? all : all + ")";
}

/// What a tab, a group or a selection is while it is active.
std::string activeWord(const host::InputView& input) {
    if (input.kind == "Group") {
        return input.active ? "" : "collapsed";
    }
    if (input.kind == "Selection") {
        return input.active ? "has the focus" : "";
    }
    return input.active ? "active" : "";
}

std::vector<std::string> stateWords(const host::InputView& input) {
    std::vector<std::string> words = {input.visible ? "" : "hidden",
                                      input.enabled ? "" : "disabled",
                                      input.readOnly ? "read-only" : "", activeWord(input)};
    std::erase(words, "");
    return words;
}

bool hasValue(const host::InputView& input) {
    return input.kind != "Tab" && input.kind != "Group" && input.kind != "Table" &&
           input.kind != "Image" && input.kind != "Button";
}

std::string itemNames(const host::InputView& input) {
    std::vector<std::string> names;
    for (const host::ItemView& each : input.items) {
        names.push_back(printable(each.name));
    }
    return quoted(names);
}

std::string inputLine(const host::InputView& input) {
    std::string line = input.kind + " " + printable(input.id);
    line += input.caption.empty() ? "" : " " + quote(input.caption);
    line += input.text.empty() ? "" : " on it " + quote(input.text);
    line += hasValue(input) ? " = " + quote(input.value) : "";
    return line + remarks(stateWords(input));
}

/// The last part of a path, without its ending: what a picture is known by.
std::string pictureName(const std::string& path) {
    const std::string last = path.substr(path.find_last_of("/\\") + 1);
    return last.substr(0, last.rfind('.'));
}

/// A button's caption, or its icons where it has none.
std::string buttonText(const host::InputView& button) {
    const std::string& caption = button.text.empty() ? button.caption : button.text;
    return "[" + (caption.empty() ? pictureName(button.picture) : caption) + "]";
}

/// What a cell shows; in parentheses while it is hidden.
std::string cellText(const host::InputView& cell) {
    const std::string text = cell.kind == "Button"  ? buttonText(cell)
                             : cell.kind == "Image" ? pictureName(cell.picture)
                                                    : cell.value;
    return cell.visible ? text : "(" + text + ")";
}

std::string columnCaption(const host::TableContents& table, int column) {
    const bool shown = std::ranges::find(table.shownColumns, column) != table.shownColumns.end();
    return "Column " + std::to_string(column) + (shown ? "" : " (hidden)");
}

int lastColumn(const host::TableContents& table) {
    int last = table.columns - 1;
    for (const host::RowView& row : table.rows) {
        for (const host::InputView& cell : row.cells) {
            last = std::max(last, cell.column);
        }
    }
    return last;
}

std::string rowText(const host::RowView& row) {
    return std::string(row.shown ? "" : "hidden") +
           (row.selected ? (row.shown ? "selected" : ", selected") : "");
}

std::string rowsText(const host::TableContents& contents, std::size_t depth) {
    std::vector<std::string> captions = {"Row", ""};
    const int last = lastColumn(contents);
    for (int column = 0; column <= last; ++column) {
        captions.push_back(columnCaption(contents, column));
    }
    TextTable table(captions, console::charset());
    constexpr std::size_t kFirstColumn = 2;
    for (const host::RowView& row : contents.rows) {
        std::vector<std::string> cells(captions.size());
        cells[0] = std::to_string(row.row);
        cells[1] = rowText(row);
        for (const host::InputView& cell : row.cells) {
            cells[kFirstColumn + static_cast<std::size_t>(cell.column)] = cellText(cell);
        }
        table.add(cells);
    }
    return table.text(depth * kStep);
}

std::string tableText(const host::InputView& input, std::size_t depth);

std::string inputText(const host::InputView& input, std::size_t depth) {
    if (input.kind == "Table") {
        return tableText(input, depth);
    }
    std::string text = margin(depth) + inputLine(input) + "\n";
    if (!input.items.empty()) {
        text += margin(depth + 1) + "items: " + itemNames(input) + "\n";
    }
    for (const host::InputView& each : input.inputs) {
        text += inputText(each, depth + 1);
    }
    return text;
}

std::string tableText(const host::InputView& input, std::size_t depth) {
    const auto hidden =
        std::ranges::count(input.table.rows, false, [](const host::RowView& r) { return r.shown; });
    std::string text = margin(depth) + inputLine(input) + ": " +
                       std::to_string(input.table.rows.size()) + " rows, " +
                       std::to_string(hidden) + " of them hidden; widths " +
                       printable(input.table.ratio) + "\n";
    if (!input.table.rows.empty()) {
        text += rowsText(input.table, depth + 1);
    }
    if (!input.table.toolbar.empty()) {
        text += margin(depth + 1) + "below the table\n";
    }
    for (const host::InputView& each : input.table.toolbar) {
        text += inputText(each, depth + 2);
    }
    return text;
}

std::string buttonsText(const host::DialogView& dialog) {
    std::string text;
    if (dialog.okVisible) {
        text += "OK     " + quote(dialog.okText);
        text += dialog.whyOkRefused.empty()
                    ? "\n"
                    : " (disabled: " + printable(dialog.whyOkRefused) + ")\n";
    }
    return text + "Cancel " + quote(dialog.cancelText) + "\n";
}

std::string titled(const std::string& what, const std::string& id, const std::string& caption) {
    return what + " " + printable(id) + " " + quote(caption);
}

std::vector<std::string> controlWords(const host::ControlView& control) {
    std::vector<std::string> words = {control.visible ? "" : "hidden",
                                      control.promoted ? "promoted" : "",
                                      control.isDeleted ? "without its command" : ""};
    std::erase(words, "");
    return words;
}

std::string controlsText(const std::vector<host::ControlView>& controls, std::size_t depth) {
    TextTable table({"Command", "Caption", "Tooltip"}, console::charset());
    for (const host::ControlView& each : controls) {
        table.add({each.command + remarks(controlWords(each)), each.caption, each.tooltip});
    }
    return controls.empty() ? margin(depth) + "no commands\n" : table.text(depth * kStep);
}

std::string tabText(const host::ToolbarTabView& tab) {
    std::string text = margin(1) + titled("Tab", tab.id, tab.caption) + "\n";
    for (const host::PanelView& panel : tab.panels) {
        text += margin(2) + titled("Panel", panel.id, panel.caption) +
                (panel.native ? " (the host's own)\n" : "\n");
        text += controlsText(panel.controls, 3);
    }
    return text;
}

}  // namespace

std::string asText(const host::DialogView& dialog) {
    std::string text = titled("Dialog", dialog.command, dialog.caption);
    if (dialog.width > 0) {
        text += " " + std::to_string(dialog.width) + " x " + std::to_string(dialog.height);
    }
    text += "\n" + buttonsText(dialog);
    for (const host::InputView& each : dialog.inputs) {
        text += inputText(each, 0);
    }
    return text;
}

std::string asText(const host::ToolbarView& toolbars) {
    std::string text;
    for (const host::WorkspaceView& each : toolbars.workspaces) {
        text +=
            titled("Workspace", each.id, each.caption) +
            remarks(each.active ? std::vector<std::string>{"active"} : std::vector<std::string>{}) +
            (each.tabs.empty() ? ": no panels\n" : "\n");
        for (const host::ToolbarTabView& tab : each.tabs) {
            text += tabText(tab);
        }
    }
    if (!toolbars.withoutButton.empty()) {
        text += "Commands without a button\n" + controlsText(toolbars.withoutButton, 1);
    }
    return text;
}

}  // namespace workbench
