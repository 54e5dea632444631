#include "workbench/dialogs/bom_rows.h"

#include <charconv>
#include <map>

namespace workbench {
namespace {

using namespace adsk::core;

void walk(const host::DesignData& design, std::size_t component, const BomOccurrence& parent,
          std::vector<BomOccurrence>& all) {
    for (const host::OccurrenceData& child : design.components[component].children) {
        if (child.absent) {
            continue;
        }
        BomOccurrence occurrence{
            .path = parent.path, .component = child.component, .level = parent.level + 1};
        occurrence.path += occurrence.path.empty() ? "" : "+";
        occurrence.path +=
            design.components[child.component].name + ":" + std::to_string(child.instance);
        all.push_back(occurrence);
        walk(design, child.component, occurrence, all);
    }
}

bool hasAssumedBodies(const host::ComponentData& component) {
    return component.geometry != nullptr && component.material &&
           (component.material->nameAssumed || component.material->densityAssumed);
}

/// Marks a component and those below it, each once.
bool markAssumed(const host::DesignData& design, std::size_t component, std::vector<bool>& seen,
                 std::vector<bool>& assumed) {
    if (!seen[component]) {
        seen[component] = true;
        bool found = hasAssumedBodies(design.components[component]);
        for (const host::OccurrenceData& child : design.components[component].children) {
            found = markAssumed(design, child.component, seen, assumed) || found;
        }
        assumed[component] = found;
    }
    return assumed[component];
}

/// The number at the end of the id of a row's first cell, which counts the occurrences.
std::size_t numberOf(const Ptr<CommandInput>& first) {
    const std::string id = first ? first->id() : "";
    std::size_t number = 0;
    const char* const end = id.data() + id.size();
    std::from_chars(id.data() + id.rfind('_') + 1, end, number);
    return number;
}

}  // namespace

std::vector<BomOccurrence> occurrencesOf(const host::DesignData& design) {
    std::vector<BomOccurrence> all;
    walk(design, /*component=*/0, {.path = "", .component = 0, .level = 0}, all);
    return all;
}

std::vector<bool> componentsWithAssumed(const host::DesignData& design) {
    std::vector<bool> seen(design.components.size());
    std::vector<bool> assumed(design.components.size());
    for (std::size_t component = 0; component < design.components.size(); ++component) {
        markAssumed(design, component, seen, assumed);
    }
    return assumed;
}

std::vector<BomRow> rowsOf(const Ptr<TableCommandInput>& table, const host::TableView& view) {
    std::map<int, std::size_t> lines;
    for (std::size_t line = 1; line < view.rows.size(); ++line) {
        lines[view.rows[line].row] = line;
    }
    std::vector<BomRow> rows;
    const int count = table->rowCount();
    for (int row = 1; row < count; ++row) {
        if (const std::size_t number = numberOf(table->getInputAtPosition(row, 0)); number > 0) {
            const auto line = lines.find(row);
            rows.push_back({.row = row,
                            .line = line == lines.end() ? 0 : line->second,
                            .occurrence = number - 1});
        }
    }
    return rows;
}

}  // namespace workbench
