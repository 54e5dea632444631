#include "tests/tarnix/bom/behaviour/reference_write_back.h"

#include "tarnix/bom/model/columns.h"
#include "tarnix/bom/model/walk.h"
#include "tarnix/text/checked.h"
#include "tarnix/text/ids.h"

#include "tests/tarnix/bom/model/reference_bom.h"

#include <cstddef>
#include <exception>
#include <map>

namespace reference {

using namespace adsk::core;
using namespace adsk::fusion;
using tarnix::BomRow;

namespace {

constexpr const char* kGroup = "QEMA_PropertiesAttributesGroup";

Cell captureCell(const Ptr<CommandInput>& input) {
    Cell cell;
    if (!input) return cell;
    cell.kind = Cell::Kind::Other;
    cell.id = input->id();
    if (const Ptr<StringValueCommandInput> field = input) {
        cell.kind = Cell::Kind::Field;
        cell.text = field->value();
    } else if (const Ptr<ImageCommandInput> image = input) {
        cell.kind = Cell::Kind::Image;
        cell.text = image->imageFile();
    } else if (const Ptr<DropDownCommandInput> dropDown = input) {
        cell.kind = Cell::Kind::DropDown;
        for (std::size_t i = 0; i < dropDown->listItems()->count(); ++i) {
            const Ptr<ListItem> item = dropDown->listItems()->item(i);
            cell.choices.emplace_back(item->name(), item->isSelected());
        }
    }
    return cell;
}

void setAttribute(const Ptr<Component>& component, const std::string& name,
                  const std::string& value) {
    const Ptr<Attributes> attributes = component->attributes();
    const Ptr<Attribute> found = attributes->itemByName(kGroup, name);
    if (found) {
        found->value(value);
    } else {
        attributes->add(kGroup, name, value);
    }
}

/// The value of a field; anything else is like a null handle.
const std::string& textOf(const Cell& cell) {
    if (cell.kind != Cell::Kind::Field) throw std::exception();
    return cell.text;
}

std::string nameIn(const std::string& id) {
    const std::size_t first = id.find('_');
    const std::size_t last = id.rfind('_');
    return first == last ? id.substr(first + 1) : id.substr(first + 1, last - first - 1);
}

/// One of the columns from 5 on that no other rule took.
void writeOther(const BomRow& row, const std::string& number, const Cell& cell) {
    for (std::size_t k = 0; k < row.properties.size(); ++k) {
        const std::string& key = row.properties[k].name;
        if (!tarnix::isBuiltInName(nameIn(cell.id))) {
            if (cell.id == key + "_" + number) setAttribute(row.component, key, textOf(cell));
        } else if (k + 1 == row.properties.size()) {
            const std::string name = cell.id.substr(0, cell.id.rfind('_'));
            const Ptr<Attributes> attributes = row.component->attributes();
            if (!attributes->itemByName(kGroup, name)) {
                attributes->add(kGroup, name, textOf(cell));
            }
        }
    }
}

void writePartNumber(const BomRow& row, const Cell& cell, const Cell& /*partNumber*/) {
    row.component->partNumber(textOf(cell));
}

void writeStructure(const BomRow& row, const Cell& cell, const Cell& /*partNumber*/) {
    for (const auto& [name, chosen] : cell.choices) {
        setAttribute(row.component, name, chosen ? "1" : "");
    }
}

void writeName(const BomRow& row, const Cell& cell, const Cell& partNumber) {
    row.component->name(textOf(cell));
    row.component->partNumber(textOf(partNumber));
}

void writeDescription(const BomRow& row, const Cell& cell, const Cell& /*partNumber*/) {
    row.component->description(textOf(cell));
}

using Write = void (*)(const BomRow& row, const Cell& cell, const Cell& partNumber);

/// Where the cells of each tab go, by their ids without the number; any other is a property's.
const std::map<std::string, Write>& targetsOf(Tab tab) {
    static const std::map<std::string, Write> structure = {{"partNumberOcc", writePartNumber},
                                                           {"bomStructure", writeStructure},
                                                           {"QEMA_Part Name", writeName},
                                                           {"QEMA_Description", writeDescription}};
    static const std::map<std::string, Write> model = {{"modelPartNumberOcc", writePartNumber},
                                                       {"modelBomStructure", writeStructure},
                                                       {"QEMA_Part Name", writeName},
                                                       {"QEMA_Description", writeDescription}};
    return tab == Tab::Structure ? structure : model;
}

void writeRow(const BomRow& row, const std::string& number, const std::vector<Cell>& cells, Tab tab,
              int configuredColumns) {
    constexpr std::size_t kPartNumberColumn = 3;
    constexpr std::size_t kFixedColumns = 5;
    const std::size_t columns = kFixedColumns + static_cast<std::size_t>(configuredColumns);
    for (std::size_t column = 0; column < columns; ++column) {
        const Cell& cell = cells.at(column);
        if (cell.kind == Cell::Kind::None) throw std::exception();
        const auto target = targetsOf(tab).find(tarnix::idBase(cell.id));
        const bool isOfThisRow = tarnix::idTail(cell.id) == number;
        if (isOfThisRow && target != targetsOf(tab).end()) {
            target->second(row, cell, cells.at(kPartNumberColumn));
        } else if (column >= kFixedColumns) {
            writeOther(row, number, cell);
        }
    }
}

bool anyMatches(const Ptr<OccurrenceList>& occurrences, const Table& table) {
    bool any = false;
    for (std::size_t row = 1; row < table.size(); ++row) {
        for (std::size_t i = 0; i < occurrences->count(); ++i) {
            const Cell& cell = table[row].at(3);
            const std::string number = occurrences->item(i)->component()->partNumber();
            any = any || (cell.kind == Cell::Kind::Field && cell.text == number);
        }
    }
    return any;
}

}  // namespace

Table capture(const Ptr<TableCommandInput>& table) {
    constexpr int kMostColumns = 12;
    Table captured;
    for (int row = 0; row < table->rowCount(); ++row) {
        captured.emplace_back();
        for (int column = 0; column < kMostColumns; ++column) {
            captured.back().push_back(captureCell(table->getInputAtPosition(row, column)));
        }
    }
    return captured;
}

void writeBack(const Ptr<Component>& root, const Table& table, Tab tab, int configuredColumns) {
    const Ptr<OccurrenceList> occurrences = root->occurrences()->asList();
    tarnix::BomModel model;
    const std::vector<BomRow> rows = tab == Tab::Structure && anyMatches(occurrences, table)
                                         ? reference::walkOccurrencesMerged(model, occurrences, 1)
                                         : tarnix::walkOccurrences(model, occurrences, 1);
    for (std::size_t r = 1; r < table.size(); ++r) {
        const Cell& first = table[r].front();
        if (first.kind == Cell::Kind::None) continue;
        const int number = tarnix::idNumber(first.id);
        const BomRow row = tarnix::at(rows, static_cast<std::size_t>(number) - 1);
        if (first.kind == Cell::Kind::Image && first.text.find("Combine") != std::string::npos) {
            const std::string description = row.component->description();
            if (!description.empty()) {
                row.component->description(tarnix::substringFrom(description, 15));
            }
            continue;
        }
        writeRow(row, std::to_string(number), table[r], tab, configuredColumns);
    }
}

}  // namespace reference
