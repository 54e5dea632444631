#include "tests/tarnix/bom/whole_dialog/plain_dialog.h"

#include <algorithm>
#include <array>

/// What the three tabs hold when they are made.
namespace plain {
namespace {

constexpr int kFixedColumns = 5;
constexpr int kConfigured = 6;
const std::array<const char*, 5> kStructures = {"Produce", "Buy", "AsPart", "Divided", "Reference"};

std::string keyOf(const std::string& item) { return item.substr(0, item.find(';')); }

std::string labelOf(const std::string& item) {
    return item.find(';') == std::string::npos ? item : item.substr(item.find(';') + 1);
}

std::string captionOf(const std::string& label) {
    if (label == "Mass") return "Mass [kg]";
    if (label == "Area") return "Area [cm\u00B2]";
    if (label == "Density") return "Density [kg/m\u00B3]";
    if (label == "Volume") return "Volume [cm\u00B3]";
    return label;
}

std::string ratioOf(std::string ratio, int items) {
    for (int i = 0; i < items; ++i) ratio += ":8";
    for (int columns = kFixedColumns + items; columns < 12; ++columns) ratio += ":0";
    return ratio;
}

/// `text` in front of its n-th point, whole where it has fewer.
std::string beforePoint(const std::string& text, int n) {
    std::size_t place = std::string::npos;
    for (int i = 0; i < n; ++i) {
        place = text.find('.', i == 0 ? 0 : place + 1);
        if (place == std::string::npos) return text;
    }
    return text.substr(0, place);
}

std::string graphOf(const std::string& position) {
    std::string graph;
    for (const char letter : position) graph += letter == '.' ? "\u2591    " : "";
    return graph.empty() ? "" : graph + "\u251C\u2500\u2500";
}

void selectOnly(Cell& list, std::size_t chosen) {
    for (std::size_t i = 0; i < list.items.size(); ++i) list.items[i].second = i == chosen;
}

void fillStructures(Cell& list, const Row& row) {
    for (const char* name : kStructures) list.items.emplace_back(name, false);
    for (std::size_t i = 0; i < kStructures.size(); ++i) {
        if (isSet(row, kStructures[i])) selectOnly(list, i);
    }
    if (firstSet(row).empty()) selectOnly(list, 0);
}

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

/// Which rows of the merged list the tab "Structure" shows. "empty" is a word like any other.
struct Filter {
    /// Whether a row is shown, `previous` being the one before it in the list.
    bool takes(const Design& design, const Row& row, const Row& previous);

    /// Takes note of a row that is shown.
    void passed(const Row& row);

    std::string referencePath = "empty";
    std::string dividedPath = "empty";
    std::string stem = "empty";
    int dividedLevel = 1;
    int lastShownLevel = 0;
    Rows seen;
};

bool Filter::takes(const Design& design, const Row& row, const Row& previous) {
    const std::string& path = row.occurrence->path;
    if (dividedPath != "empty" && !contains(path, dividedPath)) dividedPath = "empty";
    const std::string set = firstSet(row);
    if (set == "Reference") {
        const bool isNew = referencePath == "empty" || !contains(path, referencePath);
        if (isNew) referencePath = path;
        return false;
    }
    if (contains(path, referencePath)) return false;
    if (set == "Divided") {
        dividedLevel = row.level;
        dividedPath = path;
        return false;
    }
    if (row.level > 1 && dividedPath != "empty" &&
        static_cast<unsigned>(row.level - dividedLevel) > 1U && contains(path, dividedPath)) {
        return false;
    }
    if (stem != "empty" && row.level >= previous.level && contains(path, stem)) return false;
    if (previous.pathName == "-1" && row.level > lastShownLevel && lastShownLevel != 0) {
        return false;
    }
    if (find(design, seen, row) >= 0) return false;
    seen.push_back(row);
    return true;
}

void Filter::passed(const Row& row) {
    const std::string& path = row.occurrence->path;
    const bool hasChildren = !row.occurrence->children.empty();
    if (hasChildren && stem != "empty" && !contains(path, stem)) stem = "empty";
    lastShownLevel = row.level;
    if (hasChildren) stem = path.substr(0, path.rfind(':'));
}

}  // namespace

Cell* Table::cell(int row, int column) {
    if (row < 0 || row >= rowCount()) return nullptr;
    const auto found = rows[static_cast<std::size_t>(row)].find(column);
    return found == rows[static_cast<std::size_t>(row)].end() ? nullptr : &found->second;
}

Table& Dialog::table(Tab of) {
    return of == Tab::Model ? model : of == Tab::Structure ? structure : configuration;
}

void Dialog::adopt(Tab of, Table made) {
    table(of) = std::move(made);
    for (auto& row : table(of).rows) {
        for (auto& [column, cell] : row) cell.serial = ++serials_;
    }
}

Cell Dialog::make(std::string kind, std::string id, std::string caption, std::string value) {
    Cell cell;
    cell.kind = std::move(kind);
    cell.id = std::move(id);
    cell.caption = std::move(caption);
    cell.value = std::move(value);
    cell.serial = ++serials_;
    return cell;
}

void Dialog::open() {
    model = {};
    structure = {};
    configuration = {};
    order.clear();
    mass.clear();
    massShown = false;
    tab = Tab::Model;
    buildModelTable();
    structure.columns = static_cast<int>(items.size()) + 4;
    structure.ratio = ratioOf("2:3:0:12:8", static_cast<int>(items.size()));
    buildConfigurationTable();
}

void Dialog::addConfigured(std::map<int, Cell>& cells, const Row& row, const std::string& number) {
    for (int k = 0; k < kConfigured; ++k) {
        const bool isUsed = k < static_cast<int>(items.size());
        const std::string item = isUsed ? items[static_cast<std::size_t>(k)] : "";
        cells[kFixedColumns + k] = make("StringValue", keyOf(item) + "_" + number, labelOf(item),
                                        isUsed ? cellText(design, row, keyOf(item)) : "");
    }
}

void Dialog::addHeader(Table& table, const std::array<std::string, 5>& ids) {
    const std::array<const char*, kFixedColumns> captions = {"", "Pos.", "", "Part Number",
                                                             "BOM Structure"};
    table.rows.emplace_back();
    for (int c = 0; c < kFixedColumns; ++c) {
        const auto place = static_cast<std::size_t>(c);
        table.rows[0][c] = make("Button", ids[place], captions[place], "false");
    }
    for (std::size_t k = 0; k < items.size(); ++k) {
        table.rows[0][kFixedColumns + static_cast<int>(k)] =
            make("Button", keyOf(items[k]) + "_0", captionOf(labelOf(items[k])), "false");
    }
}

std::string Dialog::nextPosition(const Row& row, const std::string& previousPath,
                                 std::string& prefix) {
    std::string position;
    if (row.relativePosition.empty()) {
        position = std::to_string(modelRowCounter);
        prefix.clear();
    } else {
        --modelRowCounter;
        if (!prefix.empty() && previousPath == "-1") prefix = beforePoint(prefix, row.level - 1);
        position =
            (prefix.empty() ? std::to_string(modelRowCounter) : prefix) + row.relativePosition;
    }
    if (row.childCount > 0 && row.level != 1) prefix = position;
    ++modelRowCounter;
    return position;
}

void Dialog::buildModelTable() {
    const int n = static_cast<int>(items.size());
    model.columns = n + 4;
    model.ratio = ratioOf("2:0:8:12:8", n);
    addHeader(model, {});
    const Rows rows = walk(calls, design, userNames);
    std::string prefix;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::string previousPath = i == 0 ? "" : rows[i - 1].pathName;
        addModelRow(rows[i], nextPosition(rows[i], previousPath, prefix));
    }
}

void Dialog::addModelRow(const Row& row, const std::string& position) {
    const std::string r = std::to_string(model.rowCount());
    std::map<int, Cell> cells;
    cells[0] = make("Button", "modelColapseRow_" + r, "", "false");
    cells[0].picture =
        row.childCount > 0 ? "././Resources/BOM/ColapseAsm" : "././Resources/BOM/Part";
    cells[1] = make("StringValue", "positionOcc_" + r, "", position);
    cells[1].readOnly = true;
    cells[2] = make("StringValue", "graphPositionOcc_" + r, "", graphOf(position));
    cells[2].readOnly = true;
    cells[3] = make("StringValue", "modelPartNumberOcc_" + r, "Part Number",
                    design.components[row.component].number);
    cells[4] = make("DropDown", "modelBomStructure_" + r, "BOM Structure", "");
    fillStructures(cells[4], row);
    addConfigured(cells, row, r);
    const bool isHidden = position.find('.') != std::string::npos;
    for (int c = 0; isHidden && c <= model.columns; ++c) cells[c].visible = false;
    model.rows.push_back(std::move(cells));
}

void Dialog::buildConfigurationTable() {
    Table& t = configuration;
    t.columns = 10;
    t.ratio = "3:3:6:7:8:8:8:8:8:8";
    t.rows.resize(3);
    const std::array<const char*, 4> captions = {"Asm.", "Pos.", "Part Number", "BOM Structure"};
    const std::array<const char*, 4> ids = {"colapseRow", "positionOcc", "partNumberOcc",
                                            "bomStructure"};
    const std::array<const char*, 4> values = {"isAsm.", "1.1", "Part Number", "Produce"};
    for (int c = 0; c < 4; ++c) {
        const auto place = static_cast<std::size_t>(c);
        const std::string number = std::to_string(c + 1);
        t.rows[0][c] = make("StringValue", "", "", "default");
        t.rows[1][c] = make("StringValue", "nameCol" + number, "NameCol" + number, captions[place]);
        t.rows[2][c] = make("StringValue", ids[place], captions[place], values[place]);
        for (auto& row : t.rows) row[c].readOnly = true;
    }
    for (int c = 4; c < t.columns; ++c) addFreeColumn(c);
    for (int q = 0; q < static_cast<int>(items.size()); ++q) loadColumn(q);
}

void Dialog::addFreeColumn(int c) {
    Table& t = configuration;
    const std::string number = std::to_string(c + 1);
    t.rows[0][c] = make("StringValue", "colUsrHeader_" + std::to_string(c - 3), "", "not used");
    t.rows[0][c].readOnly = true;
    t.rows[1][c] = make("StringValue", "nameCol" + number, "NameCol" + number, "");
    t.rows[2][c] = make("DropDown", "iProperty_" + std::to_string(c - 4), "iProperty", "");
    auto& choices = t.rows[2][c].items;
    for (const char* name :
         {"---Select One---", "Quantity", "--- Model Property ---", "Part Name", "Description",
          "Area", "Density", "Mass", "Volume", "Physical Material", "Length", "Width", "Height",
          "Bounding Box", "--- User Property ---"}) {
        choices.emplace_back(name, false);
    }
    for (const std::string& name : userNames) choices.emplace_back(name, false);
}

void Dialog::loadColumn(int q) {
    Table& t = configuration;
    const std::string& item = items[static_cast<std::size_t>(q)];
    Cell& list = t.rows[2][q + 4];
    for (std::size_t i = 0; i < list.items.size(); ++i) {
        if ("QEMA_" + list.items[i].first != keyOf(item)) continue;
        selectOnly(list, i);
        t.rows[1][q + 4].value = labelOf(item);
        t.rows[0][q + 4].value = "used";
    }
}

void Dialog::fillStructure() {
    const Rows rows = walkMerged(calls, design);
    addHeader(structure, {"colapseRow_0", "positionOcc_0", "graphPositionOcc_0", "partNumberOcc_0",
                          "bomStructure_0"});
    Filter filter;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (!filter.takes(design, rows[i], i == 0 ? Row() : rows[i - 1])) continue;
        addStructureRow(rows[i], static_cast<int>(i) + 1, filter.dividedPath != "empty");
        filter.passed(rows[i]);
    }
}

void Dialog::addStructureRow(const Row& row, int r, bool isUnderDivided) {
    const std::string number = std::to_string(r);
    const std::string folder = "././Resources/BOM/";
    std::map<int, Cell> cells;
    cells[0] = make("Image", "colapseRow_" + number, "", "");
    if (row.combined) {
        cells[0].picture = folder + (row.level == 1 ? "Combine.png" : "CombineUp.png");
    } else if (row.childCount > 0) {
        cells[0].picture = folder + (isUnderDivided && row.level > 1 ? "AsmUp.png" : "Asm.png");
    } else {
        cells[0].picture = folder + (isUnderDivided ? "PartUp.png" : "Part.png");
    }
    // It is made visible, which it is anyway.
    static_cast<void>(calls.refused("CommandInput::isVisible"));
    cells[1] =
        make("Button", "positionOcc_" + number, std::to_string(structure.rowCount()), "false");
    cells[2] = make("StringValue", "graphPositionOcc_" + number, "", "");
    cells[2].readOnly = true;
    cells[3] = make("StringValue", "partNumberOcc_" + number, "Part Number",
                    design.components[row.component].number);
    cells[4] = make("DropDown", "bomStructure_" + number, "BOM Structure", "");
    fillStructures(cells[4], row);
    addConfigured(cells, row, number);
    structure.rows.push_back(std::move(cells));
}

}  // namespace plain
