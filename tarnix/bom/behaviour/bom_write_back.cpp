#include "tarnix/bom/behaviour/bom_write_back.h"

#include "tarnix/bom/behaviour/open_dialog.h"
#include "tarnix/bom/model/columns.h"
#include "tarnix/bom/model/walk.h"
#include "tarnix/bom/tabs/row_cells.h"
#include "tarnix/bom/tabs/table_layout.h"
#include "tarnix/properties/property_store.h"
#include "tarnix/text/checked.h"
#include "tarnix/text/ids.h"
#include "tarnix/text/numbers.h"

#include <algorithm>
#include <cstddef>
#include <unordered_set>
#include <utility>

namespace tarnix {

using namespace adsk::core;
using namespace adsk::fusion;

namespace {

/// The value of a cell; one that is no text field throws.
std::string valueOf(const Ptr<CommandInput>& cell) {
    const Ptr<StringValueCommandInput> field = cell;
    return field->value();
}

/// Cuts the merge marker's length off the description, also where it does not begin with one.
void cutDescription(const Ptr<Component>& component) {
    constexpr std::size_t kMarkerLength = 15;
    const std::string description = component->description();
    if (!description.empty()) {
        component->description(substringFrom(description, kMarkerLength));
    }
}

/// Writes an attribute for each item of the list, so that the one of an earlier choice is cleared.
void writeStructure(const Ptr<Component>& component, const Ptr<DropDownCommandInput>& dropDown) {
    const Ptr<ListItems> items = dropDown->listItems();
    const Ptr<Attributes> attributes = component->attributes();
    const std::size_t count = items->count();
    for (std::size_t i = 0; i < count; ++i) {
        const Ptr<ListItem> item = items->item(i);
        writeAttribute(attributes, item->name(), item->isSelected() ? "1" : "");
    }
}

/// Writes the rows of one table.
class TableWriter {
public:
    TableWriter(Ptr<TableCommandInput> table, std::vector<BomRow> rows, int lastColumn,
                std::string partNumberPrefix, std::string bomStructurePrefix)
        : table_(std::move(table)),
          rows_(std::move(rows)),
          lastColumn_(lastColumn),
          partNumberPrefix_(std::move(partNumberPrefix)),
          bomStructurePrefix_(std::move(bomStructurePrefix)) {}

    void write() {
        const int rowCount = table_->rowCount();
        for (int tableRow = 1; tableRow < rowCount; ++tableRow) {
            if (const Ptr<CommandInput> first = table_->getInputAtPosition(tableRow, kIconColumn)) {
                writeRow(tableRow, first);
            }
        }
    }

private:
    void writeRow(int tableRow, const Ptr<CommandInput>& first) {
        const int number = idNumber(first->id());
        const BomRow& row = at(rows_, static_cast<std::size_t>(number) - 1);
        const Ptr<ImageCommandInput> image = first;
        if (image && image->imageFile().find(kInCombineImages) != std::string::npos) {
            cutDescription(row.component);
            return;
        }
        for (int column = 0; column <= lastColumn_; ++column) {
            writeCell(row, decimal(number), tableRow, column);
        }
    }

    void writeCell(const BomRow& row, const std::string& number, int tableRow, int column) {
        const Ptr<CommandInput> cell = table_->getInputAtPosition(tableRow, column);
        const std::string id = cell->id();
        if (id == partNumberPrefix_ + number) {
            partNumberColumn_ = column;
            row.component->partNumber(valueOf(cell));
        } else if (id == bomStructurePrefix_ + number) {
            writeStructure(row.component, cell);
        } else if (id == kPartNameKey + ("_" + number)) {
            writeName(row.component, tableRow, cell);
        } else if (id == kDescriptionKey + ("_" + number)) {
            row.component->description(valueOf(cell));
        } else if (column >= kFixedColumns) {
            writeProperty(row, number, id, cell);
        }
    }

    /// A part number follows its component's name in the host, so it is set again after it.
    void writeName(const Ptr<Component>& component, int tableRow,
                   const Ptr<CommandInput>& cell) const {
        const std::string partNumber =
            valueOf(table_->getInputAtPosition(tableRow, partNumberColumn_));
        component->name(valueOf(cell));
        component->partNumber(partNumber);
    }

    /// A custom property is written where the row had it in the walk. A measured one is added when
    /// it is missing and not changed afterwards.
    static void writeProperty(const BomRow& row, const std::string& number, const std::string& id,
                              const Ptr<CommandInput>& cell) {
        if (row.properties.empty()) {
            return;
        }
        const std::string key = idBase(id);
        if (!isCustomPropertyId(id)) {
            const Ptr<Attributes> attributes = row.component->attributes();
            if (!attributes->itemByName(kPropertiesAttributesGroup, key)) {
                attributes->add(kPropertiesAttributesGroup, key, valueOf(cell));
            }
            return;
        }
        const auto hasKey = [&](const PropertyEntry& entry) { return entry.name == key; };
        if (id == key + "_" + number && std::ranges::any_of(row.properties, hasKey)) {
            writeAttribute(row.component->attributes(), key, valueOf(cell));
        }
    }

    Ptr<TableCommandInput> table_;
    std::vector<BomRow> rows_;
    int lastColumn_;
    std::string partNumberPrefix_;
    std::string bomStructurePrefix_;
    int partNumberColumn_ = -1;  ///< stays from one row to the next
};

/// The occurrences at the top whose part number the table shows.
std::vector<Ptr<Occurrence>> matchingOccurrences(const Ptr<OccurrenceList>& occurrences,
                                                 const Ptr<TableCommandInput>& table) {
    std::unordered_set<std::string> partNumbers;
    const int rowCount = table->rowCount();
    for (int row = 1; row < rowCount; ++row) {
        const Ptr<StringValueCommandInput> cell = table->getInputAtPosition(row, kPartNumberColumn);
        if (cell) {
            partNumbers.insert(cell->value());
        }
    }
    std::vector<Ptr<Occurrence>> matching;
    const std::size_t count = partNumbers.empty() ? 0 : occurrences->count();
    for (std::size_t i = 0; i < count; ++i) {
        const Ptr<Occurrence> occurrence = occurrences->item(i);
        if (partNumbers.contains(occurrence->component()->partNumber())) {
            matching.push_back(occurrence);
        }
    }
    return matching;
}

}  // namespace

void writeActiveTable(const Ptr<CommandEventArgs>& eventArgs) {
    const Ptr<Component> root = rootComponentOf(Application::get()->activeProduct());
    if (!root) {
        return;
    }
    const Ptr<Command> command = eventArgs->command();
    const Ptr<CommandInputs> inputs = command ? command->commandInputs() : nullptr;
    if (!inputs) {
        return;
    }
    const RowTabs tabs = rowTabs(inputs);
    const Ptr<OccurrenceList> occurrences = root->occurrences()->asList();
    if (tabs.structure->isActive()) {
        const Ptr<TableCommandInput> table =
            tabs.structure->children()->itemById(kStructureRows.tableId);
        writeBomTable(occurrences, matchingOccurrences(occurrences, table), table,
                      kStructureRows.ids.partNumber, kStructureRows.ids.structure);
    } else if (tabs.model->isActive()) {
        const Ptr<TableCommandInput> table = tabs.model->children()->itemById(kModelRows.tableId);
        writeBomTable(occurrences, /*matching=*/{}, table, kModelRows.ids.partNumber,
                      kModelRows.ids.structure);
    }
}

void writeBomTable(Ptr<OccurrenceList> occurrences, std::vector<Ptr<Occurrence>> matching,
                   Ptr<TableCommandInput> table, std::string partNumberPrefix,
                   std::string bomStructurePrefix) {
    const std::vector<Column> columns = readColumns();
    if (!table) {
        return;
    }
    BomModel model;
    if (matching.empty()) {
        walkOccurrences(model, occurrences, /*level=*/1);
    } else {
        walkOccurrencesMerged(model, occurrences, /*level=*/1);
    }
    TableWriter(table, std::move(model.rows), static_cast<int>(columns.size()) + kFixedColumns - 1,
                std::move(partNumberPrefix), std::move(bomStructurePrefix))
        .write();
}

bool isCustomPropertyId(std::string id) {
    const std::size_t first = id.find('_') + 1;
    const std::string name = id.substr(first, id.rfind('_') - first);
    return !isBuiltInName(name);
}

}  // namespace tarnix
