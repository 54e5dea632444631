#include "tests/tarnix/bom/whole_dialog/plain_dialog.h"

#include <algorithm>
#include <array>
#include <functional>
#include <set>

/// What the open dialog does about the user's actions.
namespace plain {
namespace {

/// The cell at a place that has to be there.
Cell& existing(Table& table, int row, int column) {
    Cell* const cell = table.cell(row, column);
    if (cell == nullptr) throwNullHandle();
    return *cell;
}

const std::string* chosenOf(const Cell& list) {
    for (const auto& [name, isChosen] : list.items) {
        if (isChosen) return &name;
    }
    return nullptr;
}

void setVisible(Table& table, int row, int firstColumn, int lastColumn, bool visible) {
    for (int c = firstColumn; c <= lastColumn; ++c) existing(table, row, c).visible = visible;
}

std::string positionOf(Table& table, int row) {
    const Cell& cell = existing(table, row, 1);
    const std::string text = cell.kind == "Button" ? cell.caption : cell.value;
    const std::size_t first = text.find_first_not_of("` _-|");
    return first == std::string::npos ? "" : text.substr(first);
}

int depthOf(const std::string& position) {
    return static_cast<int>(std::count(position.begin(), position.end(), '.'));
}

/// The icon and the graph of the row that is folded or unfolded.
void markParent(Table& table, int row, bool isAtTop, bool showChildren) {
    Cell& toggle = existing(table, row, 0);
    Cell& graph = existing(table, row, 2);
    if (toggle.picture.find("Asm") != std::string::npos) {
        toggle.picture =
            std::string("././Resources/BOM/") + (showChildren ? "UnColapseAsm" : "ColapseAsm");
    }
    if (!showChildren && isAtTop) graph.value.clear();
    if (showChildren && graph.value.empty()) graph.value = "\u2591";
}

/// Shows or hides a row, and returns its toggle.
const Cell& showRow(Table& table, int row, bool visible) {
    Cell& toggle = existing(table, row, 0);
    if (toggle.picture.find("/BOM/Part") == std::string::npos) {
        toggle.picture = std::string("././Resources/BOM/") +
                         (toggle.value == "true" ? "ColapseAsm" : "UnColapseAsm");
    }
    for (int c = 0; c < table.columns; ++c) {
        existing(table, row, c == 0 ? 0 : c + 1).visible = visible;
    }
    return toggle;
}

void collapse(Table& table, int row, bool showChildren) {
    const std::string p = positionOf(table, row);
    for (int q = row + 1; q < table.rowCount(); ++q) {
        const std::string other = positionOf(table, q);
        if (showChildren && depthOf(other) - depthOf(p) >= 2) continue;
        std::string ancestor = other;
        while (depthOf(p) < depthOf(other) && depthOf(ancestor) > depthOf(p)) {
            ancestor = ancestor.substr(0, ancestor.rfind('.'));
        }
        if (ancestor != p) continue;
        markParent(table, row, depthOf(p) == 0, showChildren);
        const Cell& child = showRow(table, q, showChildren);
        if (showChildren) collapse(table, q, child.value == "true");
    }
}

/// Hides a row and those whose position begins with its own.
void hideWithChildren(Table& table, int row) {
    const std::string p = positionOf(table, row);
    setVisible(table, row, 0, table.columns, false);
    for (int later = row + 1; later < table.rowCount(); ++later) {
        const std::string q = positionOf(table, later);
        if (q.size() > p.size() && q.starts_with(p)) {
            setVisible(table, later, 0, table.columns, false);
        }
    }
}

std::string fieldOf(const Cell& cell) {
    if (cell.kind == "Button") return cell.caption + ";";
    if (cell.kind == "StringValue") return cell.value + ";";
    if (cell.kind != "DropDown") return "";
    const std::string* const chosen = chosenOf(cell);
    return (chosen == nullptr ? "n/a" : *chosen) + ";";
}

std::string parentOf(const std::string& path) {
    const std::size_t plus = path.rfind('+');
    return plus != std::string::npos ? path.substr(0, plus) : path.substr(0, path.rfind(':'));
}

void setAttribute(Component& component, const std::string& name, const std::string& value) {
    for (auto& attribute : component.attributes) {
        if (attribute.first == name) {
            attribute.second = value;
            return;
        }
    }
    component.attributes.emplace_back(name, value);
}

/// Text keys of the sort; a cell without a text is left out.
bool sortText(const Cell& cell, std::string& text) {
    if (cell.kind == "DropDown") {
        const std::string* const chosen = chosenOf(cell);
        if (chosen == nullptr) throwNullHandle();
        text = *chosen;
    } else if (cell.kind == "Button") {
        text = cell.caption;
    } else if (cell.kind == "StringValue") {
        text = cell.value;
    } else {
        return false;
    }
    return true;
}

/// Puts a cell at a place, out of the one that it had. The host removes a row that this leaves
/// without cells in the table's columns; what it had beyond them goes with it.
void move(Table& table, int serial, int row, int column) {
    Cell moved;
    for (auto old = table.rows.begin(); old != table.rows.end(); ++old) {
        const auto found = std::find_if(old->begin(), old->end(), [&](const auto& each) {
            return each.second.serial == serial;
        });
        if (found == old->end()) continue;
        moved = found->second;
        old->erase(found);
        if (old->empty() || old->begin()->first > table.columns) {
            if (old - table.rows.begin() < row) --row;
            table.rows.erase(old);
        }
        break;
    }
    while (table.rowCount() <= row) table.rows.emplace_back();
    table.rows[static_cast<std::size_t>(row)][column] = moved;
}

/// Cells in the order of their columns, the header's left out.
using SortRows = std::vector<std::vector<Cell>>;

SortRows sortableRows(Table& table) {
    SortRows all;
    for (int r = 0; r < table.rowCount(); ++r) {
        std::vector<Cell> cells;
        for (int c = 0; c <= table.columns; ++c) {
            const Cell* const cell = table.cell(r, c);
            if (cell != nullptr && tailOf(cell->id) != "0") cells.push_back(*cell);
        }
        if (!cells.empty()) all.push_back(cells);
    }
    return all;
}

bool isNumeric(SortRows& rows, int column) {
    bool any = false;
    for (auto& row : rows) {
        const Cell& cell = at(row, column);
        if (cell.kind == "StringValue" && numberOf(cell.value) != 0.0) any = true;
    }
    return any;
}

/// The ids of a column in their order.
template <class Key>
std::vector<std::string> sortedIds(SortRows& rows, int column,
                                   const std::function<Key(const std::string&)>& keyOf) {
    std::map<std::string, Key> keys;
    for (auto& row : rows) {
        std::string text;
        const Cell& cell = at(row, column);
        if (sortText(cell, text)) keys[cell.id] = keyOf(text);
    }
    std::set<std::pair<Key, std::string>> pairs;
    for (const auto& [id, key] : keys) pairs.insert({key, id});
    std::vector<std::string> ids;
    for (const auto& pair : pairs) ids.push_back(pair.second);
    return ids;
}

}  // namespace

void Dialog::show(Tab shown) {
    if (tab == shown) return;
    tab = shown;
    if (isRefused || tab == Tab::Configuration) return;
    std::string ratio = tab == Tab::Structure ? "2:3:0:12:8" : "2:0:8:12:8";
    for (std::size_t k = 0; k < 6; ++k) ratio += k < items.size() ? ":8" : ":0";
    if (tab == Tab::Structure) {
        refreshStructure();
    } else {
        setVisible(model, 0, 0, model.columns, true);
    }
    table(tab).ratio = ratio;
}

void Dialog::refreshStructure() {
    if (structure.rows.empty()) fillStructure();
    for (int r = 1; r < structure.rowCount(); ++r) {
        integerOf(tailOf(existing(structure, r, 3).id));
    }
    for (int r = 1; r < structure.rowCount(); ++r) {
        const Cell* const first = structure.cell(r, 0);
        if (first != nullptr && first->visible)
            setVisible(structure, r, 1, structure.columns, true);
    }
    Rows merged = walkMerged(design);
    double total = 0;
    for (int r = 1; r < structure.rowCount(); ++r) {
        const int number = integerOf(tailOf(existing(structure, r, 0).id));
        const Row& row = at(merged, number - 1);
        total += row.occurrence->mass * static_cast<double>(row.quantity);
    }
    mass = fixed(total, 3);
}

void Dialog::chooseOrder(const std::string& name) {
    if (order == name) return;
    order = name;
    Cell drop;
    drop.id = "QEMA_droDown_AscDesc";
    changed(drop);
}

void Dialog::exportTable() {
    if (isRefused) return;
    Table& shown = table(tab);
    if (shown.rowCount() >= 2) {
        exported.clear();
        for (int r = 0; r < shown.rowCount(); ++r) {
            const Cell* const first = shown.cell(r, 0);
            if (first == nullptr || !first->visible) continue;
            for (int c = 1; c <= shown.columns; ++c) {
                const Cell* const cell = shown.cell(r, c);
                if (c != 2 && cell != nullptr) exported += fieldOf(*cell);
            }
            exported += "\r\n";
        }
        exported += "\r\n;Total mass of structure BOM [kg]: ;" + mass + "\r\n";
    }
    integerOf("btnExportXls");
}

void Dialog::save() {
    if (isRefused) return;
    items.clear();
    stored.clear();
    for (int c = 4; c < configuration.columns; ++c) {
        const std::string* const chosen = chosenOf(existing(configuration, 2, c));
        if (chosen == nullptr || *chosen == "---Select One---") continue;
        const std::string& caption = existing(configuration, 1, c).value;
        stored.push_back("QEMA_" + *chosen + ";" + caption);
        // An empty caption is read back so.
        items.push_back("QEMA_" + *chosen + ";" + (caption.empty() ? "missing" : caption));
    }
    integerOf("btnSaveConfigBom");
}

void Dialog::click(int row, int column) {
    Cell& cell = existing(table(tab), row, column);
    cell.value = cell.value == "true" ? "false" : "true";
    changed(cell);
}

void Dialog::paste(int row, int column, const std::string& text) {
    Cell& cell = existing(table(tab), row, column);
    cell.value = text;
    changed(cell);
}

void Dialog::choose(int row, int column, std::size_t item) {
    Cell& cell = existing(table(tab), row, column);
    if (cell.items[item].second) return;
    for (std::size_t i = 0; i < cell.items.size(); ++i) cell.items[i].second = i == item;
    changed(cell);
}

void Dialog::changed(const Cell& cell) {
    if (isRefused) return;
    const Rows rows = walk(design);
    const std::string id = cell.id;
    if (id.find("colapseRow_") != std::string::npos ||
        id.find("modelColapseRow_") != std::string::npos) {
        toggle(id);
    } else if (tailOf(id) == "0" && tab == Tab::Structure && !order.empty()) {
        sort(id);
    }
    followUp(id, cell.kind == "DropDown" ? &cell : nullptr, rows);
    select(id, rows);
}

void Dialog::toggle(const std::string& id) {
    if (tab == Tab::Configuration) return;
    const int number = integerOf(tailOf(id));
    const Cell& first = existing(table(tab), number, 0);
    if (first.kind != "Button") throwNullHandle();
    if (number > 0) collapse(table(tab), number, first.value == "true");
}

void Dialog::sort(const std::string& id) {
    SortRows all = sortableRows(structure);
    int column = 0;
    std::vector<Cell>& first = at(all, 0);
    for (int i = static_cast<int>(first.size()) - 1; i >= 0; --i) {
        if (at(first, i).id.find(baseOf(id)) != std::string::npos) column = i;
    }
    if (column == 0 || column == 2) return;
    const bool byNumber = column == 1 || (column >= 5 && isNumeric(all, column));
    std::vector<std::string> ids =
        byNumber
            ? sortedIds<double>(all, column, numberOf)
            : sortedIds<std::string>(all, column, [](const std::string& text) { return text; });
    if (order == "Descending") std::reverse(ids.begin(), ids.end());
    SortRows sorted;
    for (const std::string& each : ids) {
        for (auto& row : all) {
            if (at(row, column).id == each) sorted.push_back(row);
        }
    }
    for (const auto& row : sorted) {
        const int rowCount = structure.rowCount();
        for (std::size_t place = 0; place < row.size(); ++place) {
            move(structure, row[place].serial, rowCount, static_cast<int>(place));
        }
    }
}

void Dialog::followUp(const std::string& id, const Cell* dropDown, const Rows& rows) {
    const int number = integerOf(tailOf(id));
    if (baseOf(id) == "iProperty") return useColumn(number, *dropDown);
    if (dropDown == nullptr) return;
    for (const auto& [name, isChosen] : dropDown->items) {
        static_cast<void>(at(rows, number - 1));
        if (isChosen && name == "Reference" && tab == Tab::Structure) {
            hideWithChildren(structure, number);
            for (int r = 1; r < structure.rowCount(); ++r) integerOf(positionOf(structure, r));
        }
    }
}

void Dialog::useColumn(int number, const Cell& dropDown) {
    Cell& header = existing(configuration, 0, number + 4);
    Cell& caption = existing(configuration, 1, number + 4);
    Cell& list = existing(configuration, 2, number + 4);
    const std::string chosen = *chosenOf(dropDown);
    if (chosen.starts_with("---")) {
        header.value = "not use";
        caption.value.clear();
        for (std::size_t i = 0; i < list.items.size(); ++i) list.items[i].second = i == 0;
    } else {
        header.value = "used";
        caption.value = chosen;
    }
}

void Dialog::select(const std::string& id, const Rows& rows) {
    const int number = integerOf(tailOf(id));
    if (number == 0 || tab == Tab::Configuration) return;
    if (tab == Tab::Structure) return selectOnStructure(rows, number - 1);
    selected = {at(rows, number - 1).occurrence->path};
}

void Dialog::selectOnStructure(const Rows& rows, int place) {
    selected.clear();
    const Row& chosen = at(rows, place);
    selected.push_back(chosen.occurrence->path);
    const std::string group = parentOf(chosen.occurrence->path);
    for (const Row& row : rows) {
        const std::string& path = row.occurrence->path;
        const bool isSame =
            row.level == chosen.level &&
            design.components[row.component].number == design.components[chosen.component].number &&
            path.find(group) != std::string::npos;
        const bool isNew = std::find(selected.begin(), selected.end(), path) == selected.end();
        if (isSame && isNew) selected.push_back(path);
    }
}

void Dialog::accept() {
    if (isRefused || tab == Tab::Configuration) return;
    Table& shown = table(tab);
    bool anyMatches = false;
    for (int r = 1; tab == Tab::Structure && r < shown.rowCount(); ++r) {
        for (const auto& occurrence : design.top) {
            const Cell* const cell = shown.cell(r, 3);
            if (cell == nullptr) continue;
            if (!occurrence) throwNullHandle();
            if (cell->value == design.components[occurrence->component].number) anyMatches = true;
        }
    }
    Rows rows = anyMatches ? walkMerged(design) : walk(design);
    int partNumberColumn = -1;
    for (int r = 1; r < shown.rowCount(); ++r) {
        const Cell* const first = shown.cell(r, 0);
        if (first == nullptr) continue;
        const int number = integerOf(tailOf(first->id));
        const Row row = at(rows, number - 1);
        if (first->kind != "Image" || first->picture.find("Combine") == std::string::npos) {
            writeRow(row, r, number, partNumberColumn);
            continue;
        }
        std::string& description = design.components[row.component].description;
        if (description.empty()) continue;
        if (description.size() < 15) {
            throw Thrown{"std::out_of_range", "invalid string position"};
        }
        description = description.substr(15);
    }
}

void Dialog::writeRow(const Row& row, int tableRow, int number, int& partNumberColumn) {
    Table& shown = table(tab);
    Component& component = design.components[row.component];
    const bool isModel = tab == Tab::Model;
    const std::string n = std::to_string(number);
    for (int c = 0; c <= static_cast<int>(items.size()) + 4; ++c) {
        const Cell& cell = existing(shown, tableRow, c);
        if (cell.id == (isModel ? "modelPartNumberOcc_" : "partNumberOcc_") + n) {
            partNumberColumn = c;
            component.number = cell.value;
        } else if (cell.id == (isModel ? "modelBomStructure_" : "bomStructure_") + n) {
            for (const auto& [name, isChosen] : cell.items) {
                setAttribute(component, name, isChosen ? "1" : "");
            }
        } else if (cell.id == "QEMA_Part Name_" + n) {
            const std::string partNumber = existing(shown, tableRow, partNumberColumn).value;
            for (const Component& other : design.components) {
                namesClash = namesClash || (&other != &component && other.name == cell.value);
            }
            component.name = cell.value;
            component.number = partNumber;
        } else if (cell.id == "QEMA_Description_" + n) {
            component.description = cell.value;
        } else if (c > 4) {
            writeOther(row, cell, n);
        }
    }
}

void Dialog::writeOther(const Row& row, const Cell& cell, const std::string& number) {
    static const std::set<std::string> builtIn = {
        "Quantity",          "Part Name", "Part Number", "Description", "Area",
        "Density",           "Mass",      "Volume",      "Length",      "Width",
        "Physical Material", "Height",    "Bounding Box"};
    Component& component = design.components[row.component];
    const std::size_t start = cell.id.find('_') + 1;
    const std::size_t end = cell.id.rfind('_');
    const std::string name = cell.id.substr(start, end < start ? std::string::npos : end - start);
    for (std::size_t k = 0; k < row.properties.size(); ++k) {
        const std::string& key = row.properties[k].first;
        if (builtIn.count(name) == 0) {
            if (cell.id == key + "_" + number) setAttribute(component, key, cell.value);
        } else if (k + 1 == row.properties.size()) {
            const std::string attribute = baseOf(cell.id);
            const auto& all = component.attributes;
            if (std::none_of(all.begin(), all.end(),
                             [&](const auto& each) { return each.first == attribute; })) {
                setAttribute(component, attribute, cell.value);
            }
        }
    }
}

}  // namespace plain
