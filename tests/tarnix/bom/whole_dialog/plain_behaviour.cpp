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

std::string positionOf(Table& table, int row) {
    const Cell& cell = existing(table, row, 1);
    const std::string text = cell.kind == "Button" ? cell.caption : cell.value;
    const std::size_t first = text.find_first_not_of("` _-|");
    return first == std::string::npos ? "" : text.substr(first);
}

int depthOf(const std::string& position) {
    return static_cast<int>(std::count(position.begin(), position.end(), '.'));
}

std::string parentOf(const std::string& path) {
    const std::size_t plus = path.rfind('+');
    return plus != std::string::npos ? path.substr(0, plus) : path.substr(0, path.rfind(':'));
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

std::optional<Rows> Dialog::begin(const std::string& argument) {
    if (calls.refused(argument)) return std::nullopt;
    calls.need("Application::get");
    if (!hasDesign()) return std::nullopt;
    std::vector<std::string> names;
    return walk(calls, design, names);
}

bool Dialog::hasDesign() {
    return !calls.refused("Application::activeProduct") && !calls.refused("Design::rootComponent");
}

void Dialog::setVisible(Table& table, int row, int firstColumn, int lastColumn, bool visible) {
    for (int c = firstColumn; c <= lastColumn; ++c) {
        Cell& cell = existing(table, row, c);
        if (!calls.refused("CommandInput::isVisible")) cell.visible = visible;
    }
}

bool Dialog::isVisible(const Cell& cell) {
    return !calls.refused("CommandInput::isVisible") && cell.visible;
}

void Dialog::setValue(Cell& cell, const std::string& value) {
    if (!calls.refused("StringValueCommandInput::value")) cell.value = value;
}

std::string Dialog::valueOf(const Cell& cell) {
    return calls.refused("StringValueCommandInput::value") ? "" : cell.value;
}

void Dialog::markParent(Table& table, int row, bool isAtTop, bool showChildren) {
    Cell& toggle = existing(table, row, 0);
    Cell& graph = existing(table, row, 2);
    if (toggle.picture.find("Asm") != std::string::npos) {
        toggle.picture =
            std::string("././Resources/BOM/") + (showChildren ? "UnColapseAsm" : "ColapseAsm");
    }
    if (!showChildren && isAtTop) setValue(graph, "");
    if (showChildren && valueOf(graph).empty()) setValue(graph, "\u2591");
}

Cell& Dialog::showRow(Table& table, int row, bool visible) {
    Cell& toggle = existing(table, row, 0);
    if (toggle.picture.find("/BOM/Part") == std::string::npos) {
        toggle.picture = std::string("././Resources/BOM/") +
                         (toggle.value == "true" ? "ColapseAsm" : "UnColapseAsm");
    }
    for (int c = 0; c < table.columns; ++c) {
        const int column = c == 0 ? 0 : c + 1;
        setVisible(table, row, column, column, visible);
    }
    return toggle;
}

void Dialog::collapse(Table& table, int row, bool showChildren) {
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

void Dialog::hideWithChildren(Table& table, int row) {
    const std::string p = positionOf(table, row);
    setVisible(table, row, 0, table.columns, false);
    for (int later = row + 1; later < table.rowCount(); ++later) {
        const std::string q = positionOf(table, later);
        if (q.size() > p.size() && q.starts_with(p)) {
            setVisible(table, later, 0, table.columns, false);
        }
    }
}

std::string Dialog::fieldOf(const Cell& cell) {
    if (cell.kind == "Button") return cell.caption + ";";
    if (cell.kind == "StringValue") return valueOf(cell) + ";";
    if (cell.kind != "DropDown") return "";
    const std::string* const chosen = chosenOf(cell);
    return (chosen == nullptr ? "n/a" : *chosen) + ";";
}

void Dialog::setAttribute(Component& component, const std::string& name, const std::string& value) {
    for (auto& attribute : component.attributes) {
        if (attribute.first != name) continue;
        if (!calls.refused("Attribute::value")) attribute.second = value;
        return;
    }
    if (!calls.refused("Attributes::add")) component.attributes.emplace_back(name, value);
}

void Dialog::show(Tab shown) {
    if (tab == shown) return;
    tab = shown;
    if (!begin("InputChangedEventArgs::input")) return;
    calls.need("InputChangedEventArgs::inputs");
    if (tab == Tab::Configuration) return;
    std::string ratio = tab == Tab::Structure ? "2:3:0:12:8" : "2:0:8:12:8";
    for (std::size_t k = 0; k < 6; ++k) ratio += k < items.size() ? ":8" : ":0";
    if (tab == Tab::Structure) {
        if (!refreshStructure()) return;
    } else {
        setVisible(model, 0, 0, model.columns, true);
    }
    if (!calls.refused("TableCommandInput::columnRatio")) table(tab).ratio = ratio;
}

bool Dialog::refreshStructure() {
    if (structure.rows.empty() && !calls.refused("Application::get") && hasDesign()) {
        fillStructure();
    }
    for (int r = 1; r < structure.rowCount(); ++r) {
        integerOf(tailOf(existing(structure, r, 3).id));
    }
    for (int r = 1; r < structure.rowCount(); ++r) {
        const Cell* const first = structure.cell(r, 0);
        if (first != nullptr && isVisible(*first))
            setVisible(structure, r, 1, structure.columns, true);
    }
    if (calls.refused("Application::get") || !hasDesign()) return false;
    Rows merged = walkMerged(calls, design);
    double total = 0;
    for (int r = 1; r < structure.rowCount(); ++r) {
        const int number = integerOf(tailOf(existing(structure, r, 0).id));
        const Row& row = at(merged, number - 1);
        calls.need("Occurrence::physicalProperties");
        const double each = calls.refused("PhysicalProperties::mass") ? 0 : row.occurrence->mass;
        total += each * static_cast<double>(row.quantity);
    }
    if (!calls.refused("StringValueCommandInput::value")) mass = fixed(total, 3);
    if (!calls.refused("CommandInput::isVisible")) massShown = true;
    return true;
}

void Dialog::chooseOrder(const std::string& name) {
    if (order == name) return;
    order = name;
    Cell drop;
    drop.id = "QEMA_droDown_AscDesc";
    changed(drop);
}

void Dialog::follow(const std::string& id, const Cell* dropDown, const Rows& rows) {
    if (!calls.refused("InputChangedEventArgs::input")) followUp(id, dropDown, rows);
    select(id, rows);
}

void Dialog::exportTable() {
    const auto rows = begin("InputChangedEventArgs::input");
    if (!rows) return;
    Table& shown = table(tab);
    const bool isFound = !calls.refused("InputChangedEventArgs::inputs");
    if (isFound && shown.rowCount() >= 2) writeExport(shown);
    follow("QEMA_btnExportXls", nullptr, *rows);
}

void Dialog::writeExport(Table& shown) {
    exported.clear();
    for (int r = 0; r < shown.rowCount(); ++r) {
        const Cell* const first = shown.cell(r, 0);
        if (first == nullptr || !isVisible(*first)) continue;
        for (int c = 1; c <= shown.columns; ++c) {
            const Cell* const cell = shown.cell(r, c);
            if (c != 2 && cell != nullptr) exported += fieldOf(*cell);
        }
        exported += "\r\n";
    }
    exported += "\r\n";
    calls.need("CommandInput::parentCommandInput");
    calls.need("CommandInput::commandInputs");
    exported += ";Total mass of structure BOM [kg]: ;" +
                (calls.refused("StringValueCommandInput::value") ? "" : mass) + "\r\n";
}

void Dialog::save() {
    const auto rows = begin("InputChangedEventArgs::input");
    if (!rows) return;
    readColumns();
    follow("QEMA_btnSaveConfigBom", nullptr, *rows);
}

void Dialog::readColumns() {
    items.clear();
    stored.clear();
    for (int c = 4; c < configuration.columns; ++c) {
        const std::string* const chosen = chosenOf(existing(configuration, 2, c));
        if (chosen == nullptr || *chosen == "---Select One---") continue;
        const std::string caption = valueOf(existing(configuration, 1, c));
        stored.push_back("QEMA_" + *chosen + ";" + caption);
        // An empty caption is read back so.
        items.push_back("QEMA_" + *chosen + ";" + (caption.empty() ? "missing" : caption));
    }
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
    const auto rows = begin("InputChangedEventArgs::input");
    if (!rows) return;
    const std::string id = cell.id;
    const Cell* const dropDown = cell.kind == "DropDown" ? &cell : nullptr;
    if (id.find("colapseRow_") != std::string::npos ||
        id.find("modelColapseRow_") != std::string::npos) {
        toggle(id);
    } else if (calls.refused("InputChangedEventArgs::inputs")) {
        return;
    } else if (tailOf(id) == "0" && tab == Tab::Structure && !order.empty()) {
        sort(id);
    }
    follow(id, dropDown, *rows);
}

void Dialog::toggle(const std::string& id) {
    calls.need("CommandInput::parentCommandInput");
    calls.need("CommandInput::parentCommand");
    calls.need("Command::commandInputs");
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
    calls.need("CommandInput::parentCommandInput");
    calls.need("CommandInput::parentCommand");
    if (calls.refused("Command::commandInputs")) return;
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
        setValue(header, "not use");
        setValue(caption, "");
        for (std::size_t i = 0; i < list.items.size(); ++i) list.items[i].second = i == 0;
    } else {
        setValue(header, "used");
        setValue(caption, chosen);
    }
}

void Dialog::select(const std::string& id, const Rows& rows) {
    calls.need("CommandInput::parentCommand");
    calls.need("Command::commandInputs");
    const int number = integerOf(tailOf(id));
    if (number == 0 || tab == Tab::Configuration) return;
    if (tab == Tab::Structure) return selectOnStructure(rows, number - 1);
    const Row& chosen = at(rows, number - 1);
    passSelections();
    clearSelection();
    addSelection(chosen.occurrence->path);
}

void Dialog::passSelections() {
    calls.need("Product::parentDocument");
    calls.need("Document::parent");
    calls.need("Application::userInterface");
    calls.need("UserInterface::activeSelections");
}

void Dialog::clearSelection() {
    if (!calls.refused("Selections::clear")) selected.clear();
}

void Dialog::addSelection(const std::string& path) {
    const bool isNew = std::find(selected.begin(), selected.end(), path) == selected.end();
    if (!calls.refused("Selections::add") && isNew) selected.push_back(path);
}

void Dialog::selectOnStructure(const Rows& rows, int place) {
    passSelections();
    clearSelection();
    const Row& chosen = at(rows, place);
    addSelection(chosen.occurrence->path);
    const std::string group = parentOf(chosen.occurrence->path);
    for (const Row& row : rows) {
        const std::string& path = row.occurrence->path;
        const bool isSame =
            row.level == chosen.level &&
            design.components[row.component].number == design.components[chosen.component].number &&
            path.find(group) != std::string::npos;
        if (isSame) addSelection(path);
    }
}

void Dialog::setPartNumber(Component& component, const std::string& value) {
    if (!calls.refused("Component::partNumber")) component.number = value;
}

void Dialog::setDescription(Component& component, const std::string& value) {
    if (!calls.refused("Component::description")) component.description = value;
}

void Dialog::accept() {
    calls.need("Application::get");
    if (!hasDesign() || calls.refused("CommandEventArgs::command") ||
        calls.refused("Command::commandInputs") || tab == Tab::Configuration) {
        return;
    }
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
    std::vector<std::string> names;
    Rows rows = anyMatches ? walkMerged(calls, design) : walk(calls, design, names);
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
        Component& component = design.components[row.component];
        const bool isUnread = calls.refused("Component::description");
        if (isUnread || component.description.empty()) continue;
        if (component.description.size() < 15) throwStringPosition();
        setDescription(component, component.description.substr(15));
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
            setPartNumber(component, valueOf(cell));
        } else if (cell.id == (isModel ? "modelBomStructure_" : "bomStructure_") + n) {
            for (const auto& [name, isChosen] : cell.items) {
                setAttribute(component, name, isChosen ? "1" : "");
            }
        } else if (cell.id == "QEMA_Part Name_" + n) {
            const std::string partNumber = valueOf(existing(shown, tableRow, partNumberColumn));
            const std::string name = valueOf(cell);
            for (const Component& other : design.components) {
                namesClash = namesClash || (&other != &component && other.name == name);
            }
            if (!calls.refused("Component::name")) component.name = name;
            setPartNumber(component, partNumber);
        } else if (cell.id == "QEMA_Description_" + n) {
            setDescription(component, valueOf(cell));
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
            if (cell.id == key + "_" + number) setAttribute(component, key, valueOf(cell));
        } else if (k + 1 == row.properties.size()) {
            const std::string attribute = baseOf(cell.id);
            const auto& all = component.attributes;
            if (std::none_of(all.begin(), all.end(),
                             [&](const auto& each) { return each.first == attribute; })) {
                setAttribute(component, attribute, valueOf(cell));
            }
        }
    }
}

}  // namespace plain
