#include "workbench/dialogs/bom_columns.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_ids.h"
#include "workbench/output/bom_list.h"
#include "workbench/output/display_text.h"

#include <algorithm>
#include <string_view>

namespace workbench {
namespace {

/// The property of a configured column, from which the id of its header is made.
std::string propertyOf(const host::TableCell& header) {
    constexpr std::string_view kPrefix = kPropertyPrefix;
    constexpr std::string_view kSuffix = kHeaderSuffix;
    const std::string& id = header.id;
    if (!id.starts_with(kPrefix) || !id.ends_with(kSuffix) ||
        id.size() <= kPrefix.size() + kSuffix.size()) {
        return "";
    }
    return id.substr(kPrefix.size(), id.size() - kPrefix.size() - kSuffix.size());
}

}  // namespace

std::vector<BomColumn> columnsOf(const host::TableView& table) {
    const BomList list = readBomList(table);
    std::vector<BomColumn> columns;
    for (std::size_t i = 0; i < list.keys.size(); ++i) {
        const host::TableCell& header = table.rows.front().cells[i];
        columns.push_back(
            {.column = header.column, .key = list.keys[i], .property = propertyOf(header)});
    }
    return columns;
}

BomColumn findColumn(const std::vector<BomColumn>& columns, const std::string& name,
                     const std::string& what) {
    auto found = std::ranges::find(columns, name, &BomColumn::key);
    if (found == columns.end() && !name.empty()) {
        found = std::ranges::find(columns, name, &BomColumn::property);
    }
    if (found == columns.end()) {
        std::vector<std::string> keys(columns.size());
        std::ranges::transform(columns, keys.begin(), &BomColumn::key);
        refuse(what + ": no such column; available: " + quoted(keys));
    }
    return *found;
}

}  // namespace workbench
