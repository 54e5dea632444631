#include "workbench/output/bom_list.h"

#include "workbench/output/display_text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <iterator>
#include <utility>

namespace workbench {
namespace {

constexpr const char* kImageKey = "Image";
constexpr const char* kTreeKey = "Tree";
constexpr const char* kLevelKey = "Level";
constexpr const char* kPathKey = "Path";
constexpr const char* kAssumedKey = "Material assumed";
constexpr std::size_t kIndent = 2;

/// An icon, and what stands for it in a terminal.
struct Sign {
    const char* picture;  ///< how the icon's name begins
    const char* utf8;
    const char* ascii;
};

constexpr Sign kSigns[] = {
    {.picture = "Part", .utf8 = "\xC2\xB7", .ascii = "."},              // U+00B7
    {.picture = "UnColapseAsm", .utf8 = "\xE2\x96\xBE", .ascii = "v"},  // U+25BE
    {.picture = "ColapseAsm", .utf8 = "\xE2\x96\xB8", .ascii = ">"},    // U+25B8
    {.picture = "Asm", .utf8 = "\xE2\x96\xB8", .ascii = ">"},           // U+25B8
    {.picture = "Combine", .utf8 = "\xE2\x89\xA1", .ascii = "="},       // U+2261
};

std::string signOf(const std::string& picture, console::Charset charset) {
    const auto sign = std::ranges::find_if(
        kSigns, [&](const Sign& each) { return picture.starts_with(each.picture); });
    if (sign == std::end(kSigns)) {
        return picture;
    }
    return charset == console::Charset::Utf8 ? sign->utf8 : sign->ascii;
}

std::size_t columnOf(const BomList& list, const char* key) {
    return static_cast<std::size_t>(std::ranges::find(list.keys, key) - list.keys.begin());
}

/// The cells of a row, with an indented sign for its icon.
std::vector<std::string> withSign(const BomList& list, std::size_t row, int depth,
                                  console::Charset charset) {
    std::vector<std::string> cells = list.rows[row];
    const std::size_t image = columnOf(list, kImageKey);
    if (image < cells.size()) {
        cells[image] = std::string(kIndent * static_cast<std::size_t>(depth), ' ') +
                       signOf(cells[image], charset);
    }
    return cells;
}

std::vector<std::string> withoutColumn(std::vector<std::string> cells, std::size_t column) {
    if (column < cells.size()) {
        cells.erase(cells.begin() + static_cast<std::ptrdiff_t>(column));
    }
    return cells;
}

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

std::vector<std::string> makeKeys(const BomList& list, const host::TableView& table) {
    // What a row has in JSON besides its cells.
    std::vector<std::string> keys = {kLevelKey, kPathKey, kAssumedKey};
    const auto added = static_cast<std::ptrdiff_t>(keys.size());
    for (std::size_t column = 0; column < list.captions.size(); ++column) {
        const std::string unnamed = showsPictures(table, column) ? kImageKey : kTreeKey;
        const std::string& caption = list.captions[column];
        keys.push_back(firstFree(caption.empty() ? unnamed : caption, keys));
    }
    return {keys.begin() + added, keys.end()};
}

nlohmann::ordered_json toJson(const host::ReadingWarning& warning) {
    nlohmann::ordered_json json = {{"code", warning.code}, {"text", warning.line()}};
    if (!warning.component.empty()) {
        json["component"] = warning.component;
    }
    if (warning.value) {
        json["value"] = *warning.value;
        json["unit"] = warning.unit;
    }
    return json;
}

nlohmann::ordered_json toJson(const BomList& list, std::size_t row) {
    auto object = nlohmann::ordered_json::object();
    for (std::size_t i = 0; i < std::min(list.keys.size(), list.rows[row].size()); ++i) {
        object[list.keys[i]] = list.rows[row][i];
    }
    if (row < list.places.size()) {
        object[kLevelKey] = list.places[row].level;
        object[kPathKey] = list.places[row].path;
        object[kAssumedKey] = list.places[row].isAssumed;
    }
    return object;
}

}  // namespace

BomList readBomList(const host::TableView& table) {
    BomList list;
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

std::string asTable(const BomList& list, console::Charset charset, std::size_t width) {
    const std::size_t tree = columnOf(list, kTreeKey);
    const bool showsAssumed = std::ranges::any_of(list.places, &RowPlace::isAssumed);
    std::vector<std::string> captions = withoutColumn(list.captions, tree);
    if (showsAssumed) {
        captions.emplace_back("Material");
    }
    TextTable table(captions, charset);
    for (std::size_t row = 0; row < list.rows.size(); ++row) {
        const RowPlace place = row < list.places.size() ? list.places[row] : RowPlace();
        const int depth = tree < list.keys.size() ? place.level - 1 : 0;
        std::vector<std::string> cells = withSign(list, row, depth, charset);
        cells = withoutColumn(std::move(cells), tree);
        if (showsAssumed) {
            cells.emplace_back(place.isAssumed ? "assumed" : "");
        }
        table.add(cells);
    }
    std::string result = table.text(/*indent=*/0, width);
    if (!list.totalCaption.empty()) {
        result += "\n" + printable(list.totalCaption + list.total) + "\n";
    }
    return result;
}

std::string asJson(const BomList& list, const std::vector<host::ReadingWarning>& warnings) {
    nlohmann::ordered_json json = {{"rows", nlohmann::ordered_json::array()}};
    for (std::size_t row = 0; row < list.rows.size(); ++row) {
        json["rows"].push_back(toJson(list, row));
    }
    if (!list.totalCaption.empty()) {
        json["total"] = list.total;
    }
    json["warnings"] = nlohmann::ordered_json::array();
    for (const host::ReadingWarning& warning : warnings) {
        json["warnings"].push_back(toJson(warning));
    }
    return json.dump(static_cast<int>(kIndent), ' ', /*ensure_ascii=*/false,
                     nlohmann::ordered_json::error_handler_t::replace) +
           "\n";
}

}  // namespace workbench
