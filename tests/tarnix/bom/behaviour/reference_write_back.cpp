#include "tests/tarnix/bom/behaviour/reference_write_back.h"

#include "tarnix/bom/model/walk.h"
#include "tarnix/text/checked.h"
#include "tarnix/text/ids.h"

#include "tests/tarnix/bom/model/reference_bom.h"

#include <exception>
#include <set>

namespace reference {

using namespace adsk::core;
using adsk::fusion::Component;
using adsk::fusion::Occurrence;
using adsk::fusion::OccurrenceList;
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

/// The text of a field; of anything else a null handle was asked.
const std::string& textOf(const Cell& cell) {
    if (cell.kind != Cell::Kind::Field) throw std::exception();
    return cell.text;
}

bool isBuiltIn(const std::string& name) {
    static const std::set<std::string> names = {
        "Quantity",          "Part Name", "Part Number", "Description", "Area",
        "Density",           "Mass",      "Volume",      "Length",      "Width",
        "Physical Material", "Height",    "Bounding Box"};
    return names.count(name) != 0;
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
        if (!isBuiltIn(nameIn(cell.id))) {
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

void writeRow(const BomRow& row, const std::string& number, const std::vector<Cell>& cells, Tab tab,
              int configuredColumns, int& partNumberColumn) {
    const bool isStructure = tab == Tab::Structure;
    const std::string partNumberId = isStructure ? "partNumberOcc_" : "modelPartNumberOcc_";
    const std::string structureId = isStructure ? "bomStructure_" : "modelBomStructure_";
    for (int column = 0; column <= configuredColumns + 4; ++column) {
        const Cell& cell = cells.at(static_cast<std::size_t>(column));
        if (cell.kind == Cell::Kind::None) throw std::exception();
        if (cell.id == partNumberId + number) {
            partNumberColumn = column;
            row.component->partNumber(textOf(cell));
        } else if (cell.id == structureId + number) {
            for (const auto& [name, chosen] : cell.choices) {
                setAttribute(row.component, name, chosen ? "1" : "");
            }
        } else if (cell.id == "QEMA_Part Name_" + number) {
            const Cell& partNumber = cells.at(static_cast<std::size_t>(partNumberColumn));
            row.component->name(textOf(cell));
            row.component->partNumber(textOf(partNumber));
        } else if (cell.id == "QEMA_Description_" + number) {
            row.component->description(textOf(cell));
        } else if (column > 4) {
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
    int partNumberColumn = -1;
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
        writeRow(row, std::to_string(number), table[r], tab, configuredColumns, partNumberColumn);
    }
}

}  // namespace reference
