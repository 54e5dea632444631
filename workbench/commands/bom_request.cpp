#include "workbench/commands/bom_request.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_ids.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

namespace workbench {
namespace {

[[noreturn]] void refuse(const std::string& line) { throw Failure(ExitCode::BadUsage, line); }

/// A whole number from 1 on, 0 for any other text.
int positive(std::string_view text) {
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end ? std::max(number, 0) : 0;
}

ColumnWish readColumn(const std::string& text) {
    const std::size_t mark = text.find('=');
    const std::string property = text.substr(0, mark);
    if (property.empty()) {
        refuse("--column " + text + ": it has to be PROPERTY or PROPERTY=CAPTION");
    }
    return {property, mark == std::string::npos ? property : text.substr(mark + 1)};
}

std::vector<ColumnWish> readColumns(const std::vector<std::string>& texts) {
    if (texts.size() > static_cast<std::size_t>(kFreeColumns)) {
        refuse("--column is given " + std::to_string(texts.size()) + " times, there are " +
               std::to_string(kFreeColumns) + " free columns");
    }
    std::vector<ColumnWish> columns;
    for (const std::string& text : texts) {
        const ColumnWish column = readColumn(text);
        const auto isSame = [&](const ColumnWish& one) { return one.property == column.property; };
        if (std::ranges::any_of(columns, isSame)) {
            refuse("--column " + column.property + " is given twice");
        }
        columns.push_back(column);
    }
    return columns;
}

SortWish readSort(const std::string& text) {
    for (const std::string_view order : {":desc", ":asc"}) {
        if (text.ends_with(order)) {
            return {text.substr(0, text.size() - order.size()), order == ":desc"};
        }
    }
    return {text, false};
}

int readLevels(const std::string& text) {
    if (text == "all") {
        return std::numeric_limits<int>::max();
    }
    const int levels = positive(text);
    if (levels == 0) {
        refuse("--expand " + text + ": it has to be all, or a level from 1 on");
    }
    return levels;
}

CellEdit readCell(const std::string& text) {
    const std::size_t colon = text.find(':');
    const std::size_t mark = colon == std::string::npos ? colon : text.find('=', colon);
    const int row = positive(std::string_view(text).substr(0, colon));
    if (mark == std::string::npos || row == 0) {
        refuse("--set " + text + ": it has to be ROW:COLUMN=VALUE, with a row from 1 on");
    }
    return {row, text.substr(colon + 1, mark - colon - 1), text.substr(mark + 1)};
}

void checkTab(const BomOptions& options) {
    if (!options.sort.empty() && options.tab != kStructureTab.name) {
        refuse("--sort needs --tab structure: the other tab has an order of its own");
    }
    if (!options.expand.empty() && options.tab != kModelTab.name) {
        refuse("--expand needs --tab model: the other tab has no tree");
    }
    if (!options.cells.empty() && !options.save) {
        refuse("--set needs --save: what is not saved is lost as the dialog closes");
    }
}

}  // namespace

BomWishes readWishes(const BomOptions& options) {
    checkTab(options);
    BomWishes wishes;
    wishes.columns = readColumns(options.columns);
    if (!options.sort.empty()) {
        wishes.sort = readSort(options.sort);
    }
    wishes.levels = options.expand.empty() ? 1 : readLevels(options.expand);
    for (const std::string& cell : options.cells) {
        wishes.cells.push_back(readCell(cell));
    }
    return wishes;
}

}  // namespace workbench
