#include "workbench/commands/bom_request.h"

#include "workbench/cli/exit_code.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

namespace workbench {
namespace {

/// A whole number from 1, 0 for any other string.
int positive(std::string_view digits) {
    int number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number);
    return error == std::errc() && stop == end ? std::max(number, 0) : 0;
}

ColumnChoice parseColumn(const std::string& value) {
    const std::size_t mark = value.find('=');
    const std::string property = value.substr(0, mark);
    if (property.empty()) {
        refuse("--column " + value + ": expected PROPERTY or PROPERTY=CAPTION");
    }
    return {.property = property,
            .caption = mark == std::string::npos ? property : value.substr(mark + 1)};
}

}  // namespace

std::vector<ColumnChoice> parseColumns(const std::vector<std::string>& values) {
    if (values.size() > static_cast<std::size_t>(kFreeColumns)) {
        refuse("--column is given " + std::to_string(values.size()) + " times, but there are " +
               std::to_string(kFreeColumns) + " free columns");
    }
    std::vector<ColumnChoice> columns;
    for (const std::string& value : values) {
        const ColumnChoice column = parseColumn(value);
        if (std::ranges::find(columns, column.property, &ColumnChoice::property) != columns.end()) {
            refuse("--column " + column.property + " is given twice");
        }
        columns.push_back(column);
    }
    return columns;
}

std::optional<SortOrder> parseSort(const std::string& value) {
    if (value.empty()) {
        return std::nullopt;
    }
    for (const std::string_view order : {":desc", ":asc"}) {
        if (value.ends_with(order)) {
            return SortOrder{.column = value.substr(0, value.size() - order.size()),
                             .descending = order == ":desc"};
        }
    }
    return SortOrder{.column = value, .descending = false};
}

std::optional<int> parseLevels(const std::string& value) {
    if (value.empty()) {
        return std::nullopt;
    }
    if (value == "all") {
        return std::numeric_limits<int>::max();
    }
    const int levels = positive(value);
    if (levels == 0) {
        refuse("--expand " + value + ": expected all, or a level from 1");
    }
    return levels;
}

void checkCellNames(const std::vector<std::string>& values) {
    for (const std::string& value : values) {
        const std::size_t mark = value.find('=');
        const std::size_t colon = value.find(':');
        if (mark == std::string::npos || colon == 0 || colon > value.rfind('=')) {
            refuse("--set " + value + ": expected ROW:COLUMN=VALUE");
        }
    }
}

void checkRequest(const BomRequest& request) {
    if (request.sort && request.tab != &kStructureTab) {
        refuse("--sort requires --tab structure: the model tab has an order of its own");
    }
    if (request.levels && request.tab != &kModelTab) {
        refuse("--expand requires --tab model: the structure tab has no tree");
    }
    if (request.keepColumns && request.columns.empty()) {
        refuse("--keep-columns requires --column: it stores the columns that are given");
    }
    if (request.noColumns && !request.columns.empty()) {
        refuse("--no-columns shows none, but --column is given");
    }
    if (request.edits.list && !request.save) {
        refuse("--set-from requires --save: without it the edits are lost when the dialog closes");
    }
    if (!request.edits.empty() && !request.save) {
        refuse("--set requires --save: without it the edits are lost when the dialog closes");
    }
}

}  // namespace workbench
