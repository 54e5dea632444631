#include "tests/support/written_strings.h"

#include "host/session/table_view.h"

#include <algorithm>
#include <cstddef>

namespace test_support {
namespace {

const std::string kMarker = "***different***";

}  // namespace

WrittenStrings::WrittenStrings(const host::DesignData& before) {
    for (const host::ComponentData& component : before.components) {
        known_.insert({component.name, component.partNumber, component.description});
        for (const host::AttributeData& attribute : component.attributes) {
            known_.insert(attribute.value);
        }
    }
}

void WrittenStrings::addTable(const adsk::core::Ptr<adsk::core::TableCommandInput>& table) {
    const int rows = table->rowCount();
    const int columns = table->numberOfColumns();
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column <= columns; ++column) {
            known_.insert(host::readCell(table, row, column).text);
        }
    }
}

std::string WrittenStrings::findUnexpected(const host::DesignData& after) const {
    for (const host::ComponentData& component : after.components) {
        if (!isName(component.name)) return component.name;
        if (!isName(component.partNumber)) return component.partNumber;
        if (!isDescription(component.description)) return component.description;
        for (const host::AttributeData& attribute : component.attributes) {
            if (!isKnown(attribute.value)) return attribute.value;
        }
    }
    return "";
}

/// A name that another component has already gets a number from the host, and a part number that
/// was never set follows it.
bool WrittenStrings::isName(const std::string& text) const {
    const std::size_t number = text.ends_with(')') ? text.rfind(" (") : std::string::npos;
    return isKnown(text) || (number != std::string::npos && isName(text.substr(0, number)));
}

/// The merge puts the marker before a description, and the row of a merged item removes its length
/// again, once for each time that the item is in the list.
bool WrittenStrings::isDescription(std::string text) const {
    if (isKnown(text)) return true;
    if (text.starts_with(kMarker)) text.erase(0, kMarker.size());
    return std::ranges::any_of(known_, [&](const std::string& known) {
        const std::string marked = kMarker + known;
        return marked.ends_with(text) && (marked.size() - text.size()) % kMarker.size() == 0;
    });
}

}  // namespace test_support
