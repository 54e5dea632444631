#include "workbench/dialogs/bom_columns.h"

#include "workbench/cli/exit_code.h"
#include "workbench/output/parts_list.h"

#include <algorithm>
#include <string_view>

namespace workbench {
namespace {

/// The property of a configured column; its header's id is made of it.
std::string propertyOf(const host::TableCell& header) {
    constexpr std::string_view kPrefix = "QEMA_";
    constexpr std::string_view kEnd = "_0";
    const std::string& id = header.id;
    if (!id.starts_with(kPrefix) || !id.ends_with(kEnd) ||
        id.size() <= kPrefix.size() + kEnd.size()) {
        return "";
    }
    return id.substr(kPrefix.size(), id.size() - kPrefix.size() - kEnd.size());
}

}  // namespace

std::vector<ShownColumn> columnsOf(const host::TableView& table) {
    const PartsList list = readPartsList(table);
    std::vector<ShownColumn> columns;
    for (std::size_t i = 0; i < list.keys.size(); ++i) {
        const host::TableCell& header = table.rows.front().cells[i];
        columns.push_back(
            {.column = header.column, .key = list.keys[i], .property = propertyOf(header)});
    }
    return columns;
}

ShownColumn findColumn(const std::vector<ShownColumn>& columns, const std::string& name,
                       const std::string& what) {
    auto found = std::ranges::find(columns, name, &ShownColumn::key);
    if (found == columns.end() && !name.empty()) {
        found = std::ranges::find(columns, name, &ShownColumn::property);
    }
    if (found != columns.end()) {
        return *found;
    }
    std::vector<std::string> names(columns.size());
    std::ranges::transform(columns, names.begin(), &ShownColumn::key);
    throw Failure(ExitCode::BadUsage, what + ": there is no such column, only " + quoted(names));
}

std::string quoted(const std::vector<std::string>& names) {
    std::string all;
    for (const std::string& name : names) {
        all += (all.empty() ? "\"" : ", \"") + name + "\"";
    }
    return all.empty() ? "none" : all;
}

}  // namespace workbench
