#include "tests/tarnix/bom/whole_dialog/shown_dialog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace test_support {

using host::InputView;

namespace {

std::string line(int row, int column, const plain::Cell& cell) {
    std::string text = std::to_string(row) + "," + std::to_string(column) + " " + cell.kind + " " +
                       cell.id + " | " + cell.caption + " | " + cell.value + " | " + cell.picture;
    for (const auto& [name, isChosen] : cell.items) text += " " + name + (isChosen ? "*" : "");
    return text + (cell.visible ? " shown" : " hidden") + (cell.readOnly ? " fixed" : "") + "\n";
}

plain::Cell cellOf(const InputView& view) {
    plain::Cell cell;
    cell.kind = view.kind;
    cell.id = view.id;
    cell.caption = view.caption;
    cell.value = view.kind == "DropDown" ? "" : view.value;
    cell.picture = view.picture;
    for (const auto& item : view.items) cell.items.emplace_back(item.name, item.selected);
    cell.visible = view.visible;
    cell.readOnly = view.readOnly;
    return cell;
}

std::string describe(const plain::Table& table) {
    std::string text = std::to_string(table.columns) + " columns, " + table.ratio + "\n";
    for (int row = 0; row < table.rowCount(); ++row) {
        for (const auto& [column, cell] : table.rows[static_cast<std::size_t>(row)]) {
            text += line(row, column, cell);
        }
    }
    return text;
}

bool isSameCell(const InputView& view, const plain::Cell& cell) {
    const auto isSameItem = [](const host::ItemView& item, const auto& other) {
        return item.name == other.first && item.selected == other.second;
    };
    return view.kind == cell.kind && view.id == cell.id && view.caption == cell.caption &&
           (view.kind == "DropDown" || view.value == cell.value) && view.picture == cell.picture &&
           view.visible == cell.visible && view.readOnly == cell.readOnly &&
           std::equal(view.items.begin(), view.items.end(), cell.items.begin(), cell.items.end(),
                      isSameItem);
}

/// Compares without making strings of all cells: most of the time goes into comparisons.
bool isSame(const host::TableContents& contents, const plain::Table& table) {
    const auto isSameRow = [](const host::RowView& view, const std::map<int, plain::Cell>& row) {
        return std::equal(view.cells.begin(), view.cells.end(), row.begin(), row.end(),
                          [](const InputView& cell, const auto& other) {
                              return cell.column == other.first && isSameCell(cell, other.second);
                          });
    };
    return contents.columns == table.columns && contents.ratio == table.ratio &&
           std::equal(contents.rows.begin(), contents.rows.end(), table.rows.begin(),
                      table.rows.end(), isSameRow);
}

}  // namespace

const InputView& inputOf(const std::vector<InputView>& inputs, const std::string& id) {
    const auto found = std::find_if(inputs.begin(), inputs.end(),
                                    [&](const InputView& each) { return each.id == id; });
    return found == inputs.end() ? throw std::runtime_error("no input " + id) : *found;
}

/// A table of the open dialog as a plain one.
plain::Table tableOf(const host::TableContents& contents) {
    plain::Table table;
    table.columns = contents.columns;
    table.ratio = contents.ratio;
    for (const auto& row : contents.rows) {
        table.rows.resize(static_cast<std::size_t>(row.row) + 1);
        for (const auto& cell : row.cells) table.rows.back()[cell.column] = cellOf(cell);
    }
    return table;
}

void expectSame(const host::TableContents& contents, const plain::Table& table, const char* id) {
    if (isSame(contents, table)) return;
    EXPECT_EQ(describe(tableOf(contents)), describe(table)) << id;
    ADD_FAILURE() << "the table " << id << " differs";
}

std::string sortedLines(std::vector<std::string> lines) {
    std::sort(lines.begin(), lines.end());
    std::string text;
    for (const std::string& each : lines) text += each + "\n";
    return text;
}

/// The root element, in which elements without content are written in the short way.
std::string rootOf(const std::string& document) {
    const std::size_t begin = document.find("<configuration");
    std::string root = document.substr(begin, document.rfind('>') - begin);
    for (const char* name : {"displayName", "category"}) {
        const std::string empty = std::string("></") + name + ">";
        for (std::size_t at = root.find(empty); at != std::string::npos; at = root.find(empty)) {
            root.replace(at, empty.size(), "/>");
        }
    }
    return root;
}

/// The columns that a settings document has, "key;caption" each.
std::vector<std::string> columnsIn(const std::string& document) {
    static const std::regex item(
        "<item_bomItems id=\"([^\"]*)\"><displayName(?:/>|>([^<]*)</displayName>)");
    std::vector<std::string> columns;
    for (std::sregex_iterator each(document.begin(), document.end(), item), end; each != end;
         ++each) {
        columns.push_back((*each)[1].str() + ";" + (*each)[2].str());
    }
    return columns;
}

std::vector<std::string> split(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> lines;
    for (std::string each; std::getline(in, each);) lines.push_back(each);
    return lines;
}

}  // namespace test_support
