#include "tarnix/bom/model/bom_row.h"

#include <algorithm>

namespace tarnix {

bool isPropertySet(const BomRow& row, const std::string& key) {
    return std::any_of(
        row.properties.begin(), row.properties.end(),
        [&key](const PropertyEntry& entry) { return entry.name == key && entry.value == "1"; });
}

void dropProperties(BomRow& row) { std::vector<PropertyEntry>().swap(row.properties); }

void dropProperties(std::vector<BomRow>& rows) {
    for (BomRow& row : rows) {
        dropProperties(row);
    }
}

std::string firstSetProperty(const BomRow& row) {
    const auto entry = std::find_if(row.properties.begin(), row.properties.end(),
                                    [](const PropertyEntry& each) { return each.value == "1"; });
    return entry == row.properties.end() ? std::string() : entry->name;
}

}  // namespace tarnix
