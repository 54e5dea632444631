#include "parts/columns.h"

#include "parts/ascii.h"
#include "parts/request_error.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace parts {
namespace {

constexpr std::string_view kPropertyMark = "property:";
constexpr int kMostColumnDecimals = 12;

// Pictures and the columns of a field are found by it: the order is that of `Field`.
const std::vector<FieldInfo> kInfos = {
    {.field = Field::Item, .name = "Item", .key = "item"},
    {.field = Field::PartNumber, .name = "Part Number", .key = "partNumber", .isOfComponent = true},
    {.field = Field::PartName, .name = "Part Name", .key = "partName", .isOfComponent = true},
    {.field = Field::Description,
     .name = "Description",
     .key = "description",
     .isOfComponent = true},
    {.field = Field::Quantity, .name = "Quantity", .key = "quantity", .isNumber = true},
    {.field = Field::QuantityPerParent,
     .name = "Quantity per parent",
     .key = "quantityPerParent",
     .isNumber = true},
    {.field = Field::Mass,
     .name = "Mass",
     .key = "mass",
     .dimension = Dimension::Mass,
     .isMeasured = true,
     .isNumber = true,
     .isOfComponent = true},
    {.field = Field::TotalMass,
     .name = "Total mass",
     .key = "totalMass",
     .dimension = Dimension::Mass,
     .isMeasured = true,
     .isNumber = true},
    {.field = Field::Volume,
     .name = "Volume",
     .key = "volume",
     .dimension = Dimension::Volume,
     .isMeasured = true,
     .isNumber = true,
     .isOfComponent = true},
    {.field = Field::Area,
     .name = "Area",
     .key = "area",
     .dimension = Dimension::Area,
     .isMeasured = true,
     .isNumber = true,
     .isOfComponent = true},
    {.field = Field::Density,
     .name = "Density",
     .key = "density",
     .dimension = Dimension::Density,
     .isMeasured = true,
     .isNumber = true,
     .isOfComponent = true},
    {.field = Field::Material, .name = "Material", .key = "material", .isOfComponent = true},
    {.field = Field::X,
     .name = "X",
     .key = "x",
     .dimension = Dimension::Length,
     .isMeasured = true,
     .isNumber = true,
     .isOfComponent = true},
    {.field = Field::Y,
     .name = "Y",
     .key = "y",
     .dimension = Dimension::Length,
     .isMeasured = true,
     .isNumber = true,
     .isOfComponent = true},
    {.field = Field::Z,
     .name = "Z",
     .key = "z",
     .dimension = Dimension::Length,
     .isMeasured = true,
     .isNumber = true,
     .isOfComponent = true},
    {.field = Field::Size,
     .name = "Size",
     .key = "size",
     .dimension = Dimension::Length,
     .isMeasured = true,
     .isOfComponent = true},
    {.field = Field::Structure,
     .name = "BOM Structure",
     .key = "bomStructure",
     .isOfComponent = true},
    {.field = Field::Level, .name = "Level", .key = "level", .isNumber = true},
    {.field = Field::Path, .name = "Path", .key = "path"},
    {.field = Field::UsedIn, .name = "Used in", .key = "usedIn"},
    {.field = Field::Bodies,
     .name = "Bodies",
     .key = "bodies",
     .isMeasured = true,
     .isNumber = true,
     .isOfComponent = true},
    {.field = Field::Document, .name = "Document", .key = "document", .isOfComponent = true},
    {.field = Field::Thumbnail, .name = "Thumbnail", .key = "thumbnail"},
};

const FieldInfo kPropertyInfo = {
    .field = Field::Property, .name = "", .key = "property", .isOfComponent = true};

const FieldInfo* findField(std::string_view name) {
    const auto found =
        std::ranges::find_if(kInfos, [wanted = lowerCase(name)](const FieldInfo& info) {
            return lowerCase(info.name) == wanted;
        });
    return found == kInfos.end() ? nullptr : &*found;
}

/// The first place of a character that no backslash stands before; npos without any.
std::size_t findPlain(std::string_view text, char wanted, std::size_t from = 0) {
    for (std::size_t at = from; at < text.size(); ++at) {
        if (text[at] == '\\') {
            ++at;
        } else if (text[at] == wanted) {
            return at;
        }
    }
    return std::string_view::npos;
}

std::string withoutBackslashes(std::string_view text) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        at += text[at] == '\\' && at + 1 < text.size() ? 1 : 0;
        result += text[at];
    }
    return result;
}

std::string withBackslashes(std::string_view text) {
    std::string result;
    for (const char each : text) {
        if (std::string_view("\\,=[]:").find(each) != std::string_view::npos) {
            result += '\\';
        }
        result += each;
    }
    return result;
}

[[noreturn]] void refuseColumn(std::string_view text, const std::string& reason) {
    throw RequestError("\"" + std::string(text) + "\": " + reason);
}

/// Takes ":DECIMALS" from the end of a text.
std::optional<int> takeDecimals(std::string_view& text) {
    const std::size_t mark = text.rfind(':');
    if (mark == std::string_view::npos || mark + 1 == text.size() ||
        (mark > 0 && text[mark - 1] == '\\')) {
        return std::nullopt;
    }
    int decimals = 0;
    const char* const end = text.data() + text.size();
    const auto [last, failure] = std::from_chars(text.data() + mark + 1, end, decimals);
    if (failure != std::errc() || last != end) {
        return std::nullopt;
    }
    if (decimals < 0 || decimals > kMostColumnDecimals) {
        refuseColumn(text, "expected 0 to " + std::to_string(kMostColumnDecimals) + " decimals");
    }
    text = text.substr(0, mark);
    return decimals;
}

/// Takes "[UNIT]" from the end of a text.
std::optional<std::string_view> takeUnit(std::string_view& text) {
    const std::size_t mark = text.rfind('[');
    if (!text.ends_with(']') || mark == std::string_view::npos ||
        (mark > 0 && text[mark - 1] == '\\')) {
        return std::nullopt;
    }
    const std::string_view unit = text.substr(mark + 1, text.size() - mark - 2);
    text = trimmed(text.substr(0, mark));
    return unit;
}

const Unit* unitFor(const FieldInfo& info, std::string_view name, std::string_view text) {
    if (info.dimension == Dimension::None) {
        refuseColumn(text, std::string(info.name) + " has no unit");
    }
    const Unit* const unit = findUnit(name);
    if (unit == nullptr || unit->dimension != info.dimension) {
        refuseColumn(text, "no unit of " + std::string(info.name) + "; expected one of " +
                               withCommas(unitNames(info.dimension)));
    }
    return unit;
}

/// A custom property: units and decimals belong to its name.
Column propertyColumn(std::string_view text) {
    Column column{.field = Field::Property};
    const std::size_t mark = findPlain(text, '=');
    column.property = withoutBackslashes(trimmed(text.substr(0, mark)));
    if (mark != std::string_view::npos) {
        column.caption = withoutBackslashes(trimmed(text.substr(mark + 1)));
    }
    if (column.property.empty()) {
        refuseColumn(text, "expected the name of a column");
    }
    return column;
}

std::string suffixOf(const Column& column) {
    const std::string unit =
        column.unit == nullptr ? "" : "[" + std::string(column.unit->name) + "]";
    return unit + (column.decimals ? ":" + std::to_string(*column.decimals) : "");
}

}  // namespace

const std::vector<FieldInfo>& fieldInfos() { return kInfos; }

const FieldInfo& infoOf(Field field) {
    return field == Field::Property ? kPropertyInfo : kInfos[static_cast<std::size_t>(field)];
}

std::string nameOf(const Column& column) {
    return column.field == Field::Property ? column.property : infoOf(column.field).name;
}

std::string captionOf(const Column& column, const Units& units) {
    const Unit* const unit =
        column.unit != nullptr ? column.unit : units.of(infoOf(column.field).dimension);
    return (column.caption.empty() ? nameOf(column) : column.caption) +
           (unit == nullptr ? "" : " [" + std::string(unit->name) + "]");
}

Column parseColumn(std::string_view text) {
    const std::string_view whole = trimmed(text);
    if (whole.starts_with(kPropertyMark)) {
        Column column = propertyColumn(whole.substr(kPropertyMark.size()));
        column.isChosenProperty = true;
        return column;
    }
    std::string_view rest = whole;
    Column column;
    column.decimals = takeDecimals(rest);
    const std::optional<std::string_view> unit = takeUnit(rest);
    const std::size_t mark = findPlain(rest, '=');
    const FieldInfo* const info = findField(withoutBackslashes(trimmed(rest.substr(0, mark))));
    if (info == nullptr) {
        return propertyColumn(whole);
    }
    column.field = info->field;
    column.caption =
        mark == std::string_view::npos ? "" : withoutBackslashes(trimmed(rest.substr(mark + 1)));
    column.unit = unit ? unitFor(*info, *unit, whole) : nullptr;
    if (column.decimals && info->dimension == Dimension::None) {
        refuseColumn(whole, std::string(info->name) + " has no decimals");
    }
    return column;
}

std::vector<std::string_view> splitList(std::string_view text) {
    std::vector<std::string_view> entries;
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t end = std::min(findPlain(text, ',', from), text.size());
        entries.push_back(trimmed(text.substr(from, end - from)));
        from = end + 1;
    }
    return entries;
}

std::vector<Column> parseColumns(std::string_view text) {
    std::vector<Column> columns;
    for (const std::string_view entry : splitList(text)) {
        if (entry.empty()) {
            refuseColumn(text, "expected the name of a column between commas");
        }
        columns.push_back(parseColumn(entry));
    }
    return columns;
}

std::string columnText(const Column& column) {
    const bool isMarked = column.isChosenProperty;
    const std::string caption = column.caption.empty() ? "" : "=" + withBackslashes(column.caption);
    return (isMarked ? std::string(kPropertyMark) : "") + withBackslashes(nameOf(column)) +
           caption + suffixOf(column);
}

}  // namespace parts
