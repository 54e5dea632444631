#include "workbench/output/remarks.h"

#include "workbench/cli/quiet.h"
#include "workbench/output/display_text.h"

#include <algorithm>
#include <iostream>
#include <utility>

namespace workbench {
namespace {

void addOnce(Remarks& remarks, std::string text) {
    Remark remark{.text = std::move(text)};
    if (std::ranges::find(remarks, remark) == remarks.end()) {
        remarks.push_back(std::move(remark));
    }
}

}  // namespace

void addWarnings(Remarks& remarks, const std::vector<parts::ListWarning>& warnings) {
    for (const parts::ListWarning& each : warnings) {
        addOnce(remarks, (each.component.empty() ? "" : "\"" + each.component + "\" ") + each.text);
    }
}

void addEmptyFilter(Remarks& remarks, const parts::PartsList& list) {
    if (list.request.filters.empty() || !list.rows.empty()) {
        return;
    }
    std::string conditions;
    for (const parts::Filter& filter : list.request.filters) {
        conditions +=
            (conditions.empty() ? "" : " and ") + ("\"" + parts::filterText(filter)) + "\"";
    }
    addOnce(remarks, "nothing matches --filter " + conditions);
}

void addProblems(Remarks& remarks, const host::DesignData& design, const host::ShapeData& shapes) {
    for (std::size_t component = 0; component < design.components.size(); ++component) {
        const host::Shape* const shape = shapes.of(component);
        if (shape != nullptr && !shape->problem.empty()) {
            addOnce(remarks, "\"" + design.components[component].name + "\": " + shape->problem);
        }
    }
}

void reportRemarks(const Remarks& remarks, const std::string& file) {
    for (const Remark& each : remarks) {
        if (!isQuiet()) {
            std::cerr << each.kind << ": "
                      << printable((file.empty() ? "" : file + ": ") + each.text) << "\n";
        }
    }
}

}  // namespace workbench
