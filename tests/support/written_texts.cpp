#include "tests/support/written_texts.h"

#include "host/session/table_view.h"

#include <algorithm>
#include <cstddef>

namespace test_support {
namespace {

const std::string kMarker = "***different***";

}  // namespace

WrittenTexts::WrittenTexts(const host::DesignData& before) {
    for (const host::ComponentData& component : before.components) {
        texts_.insert({component.name, component.partNumber, component.description});
        for (const host::AttributeData& attribute : component.attributes) {
            texts_.insert(attribute.value);
        }
    }
}

void WrittenTexts::addTable(const adsk::core::Ptr<adsk::core::TableCommandInput>& table) {
    const int rows = table->rowCount();
    const int columns = table->numberOfColumns();
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column <= columns; ++column) {
            texts_.insert(host::readCell(table, row, column).text);
        }
    }
}

std::string WrittenTexts::findStranger(const host::DesignData& after) const {
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
/// was never set goes along.
bool WrittenTexts::isName(const std::string& text) const {
    const std::size_t number = text.ends_with(')') ? text.rfind(" (") : std::string::npos;
    return isKnown(text) || (number != std::string::npos && isName(text.substr(0, number)));
}

/// The merge puts the marker in front of a description, and the row of a merged item takes its
/// length away again, once for each time that it stands in the list.
bool WrittenTexts::isDescription(std::string text) const {
    if (isKnown(text)) return true;
    if (text.starts_with(kMarker)) text.erase(0, kMarker.size());
    return std::ranges::any_of(texts_, [&](const std::string& known) {
        const std::string marked = kMarker + known;
        return marked.ends_with(text) && (marked.size() - text.size()) % kMarker.size() == 0;
    });
}

}  // namespace test_support
