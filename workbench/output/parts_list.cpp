#include "workbench/output/parts_list.h"

#include "workbench/output/display_text.h"
#include "workbench/output/text_table.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace workbench {
namespace {

std::string contentOf(const host::TableCell& cell) {
    return cell.text.empty() ? cell.picture : cell.text;
}

bool showsPictures(const host::TableView& table, std::size_t column) {
    return std::any_of(table.rows.begin(), table.rows.end(), [&](const host::TableRow& row) {
        return column < row.cells.size() && !row.cells[column].picture.empty();
    });
}

std::string firstFree(const std::string& wanted, const std::vector<std::string>& taken) {
    std::string key = wanted;
    for (int number = 2; std::count(taken.begin(), taken.end(), key) > 0; ++number) {
        key = wanted + " " + std::to_string(number);
    }
    return key;
}

std::vector<std::string> makeKeys(const PartsList& list, const host::TableView& table) {
    std::vector<std::string> keys;
    for (std::size_t column = 0; column < list.captions.size(); ++column) {
        const std::string unnamed = showsPictures(table, column) ? "Image" : "Tree";
        const std::string& caption = list.captions[column];
        keys.push_back(firstFree(caption.empty() ? unnamed : caption, keys));
    }
    return keys;
}

}  // namespace

PartsList readPartsList(const host::TableView& table) {
    PartsList list;
    for (const host::TableRow& row : table.rows) {
        std::vector<std::string> cells;
        for (const host::TableCell& cell : row.cells) {
            cells.push_back(row.row == 0 ? cell.text : contentOf(cell));
        }
        if (row.row == 0) {
            list.captions = cells;
        } else {
            list.rows.push_back(cells);
        }
    }
    list.keys = makeKeys(list, table);
    return list;
}

std::string asTable(const PartsList& list) {
    TextTable table(list.captions);
    for (const std::vector<std::string>& row : list.rows) {
        table.add(row);
    }
    std::string result = table.text();
    if (!list.totalCaption.empty()) {
        result += "\n" + printable(list.totalCaption + list.total) + "\n";
    }
    return result;
}

std::string asJson(const PartsList& list) {
    auto rows = nlohmann::ordered_json::array();
    for (const std::vector<std::string>& row : list.rows) {
        auto object = nlohmann::ordered_json::object();
        for (std::size_t i = 0; i < std::min(list.keys.size(), row.size()); ++i) {
            object[list.keys[i]] = row[i];
        }
        rows.push_back(object);
    }
    constexpr int kIndent = 2;
    return rows.dump(kIndent, ' ', /*ensure_ascii=*/false,
                     nlohmann::ordered_json::error_handler_t::replace) +
           "\n";
}

}  // namespace workbench
