#include "tarnix/bom/model/columns.h"

#include "tarnix/text/checked.h"
#include "tarnix/text/numbers.h"
#include "tarnix/text/utf8.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace tarnix {
namespace {

using namespace adsk::core;
using namespace adsk::fusion;

std::string quantityText(const BomRow& row) { return decimal(row.quantity); }

std::string nameText(const BomRow& row) { return row.component->name(); }

std::string descriptionText(const BomRow& row) { return row.component->description(); }

Ptr<PhysicalProperties> physicalProperties(const BomRow& row) {
    return row.component->getPhysicalProperties(LowCalculationAccuracy);
}

std::string areaText(const BomRow& row) { return formatFixed(physicalProperties(row)->area(), 2); }

std::string densityText(const BomRow& row) {
    constexpr double kPerCubicMetre = 1000000;  // cubic centimetres
    return formatFixed(physicalProperties(row)->density() * kPerCubicMetre, 2);
}

std::string massText(const BomRow& row) { return formatFixed(physicalProperties(row)->mass(), 3); }

std::string volumeText(const BomRow& row) {
    return formatFixed(physicalProperties(row)->volume(), 3);
}

std::string materialText(const BomRow& row) {
    const Ptr<Material> material = row.component->material();
    return material ? material->name() : std::string();
}

std::string millimetres(double centimetres) { return formatFixed(centimetres * 10, 1); }

/// The extents of the component's box along its axes, as texts.
struct Size {
    std::string length;
    std::string width;
    std::string height;
};

// Contract: all three extents are asked of the host, also where one of them is shown.
Size sizeOf(const BomRow& row) {
    const Ptr<BoundingBox3D> box = row.component->boundingBox();
    const Ptr<Point3D> min = box->minPoint();
    const Ptr<Point3D> max = box->maxPoint();
    return {.length = millimetres(max->x() - min->x()),
            .width = millimetres(max->y() - min->y()),
            .height = millimetres(max->z() - min->z())};
}

std::string lengthText(const BomRow& row) { return sizeOf(row).length; }

std::string widthText(const BomRow& row) { return sizeOf(row).width; }

std::string heightText(const BomRow& row) { return sizeOf(row).height; }

std::string boundingBoxText(const BomRow& row) {
    const Size size = sizeOf(row);
    return size.length + " x " + size.width + " x " + size.height;
}

/// Under which heading of the list a column is offered.
enum class Offered { No, First, AsModelProperty };

struct BuiltInColumn {
    const char* name;
    Offered offered = Offered::AsModelProperty;
    std::string (*text)(const BomRow& row) = nullptr;  ///< null: the row's property of that key
    std::wstring_view unit = {};                       ///< shown in the caption
};

/// All there is to say of the built-in columns, in the order in which they are offered.
constexpr BuiltInColumn kBuiltInColumns[] = {
    {.name = "Quantity", .offered = Offered::First, .text = quantityText},
    {.name = "Part Name", .text = nameText},
    {.name = "Part Number", .offered = Offered::No},
    {.name = "Description", .text = descriptionText},
    {.name = "Area", .text = areaText, .unit = L"cm\u00B2"},
    {.name = "Density", .text = densityText, .unit = L"kg/m\u00B3"},
    {.name = "Mass", .text = massText, .unit = L"kg"},
    {.name = "Volume", .text = volumeText, .unit = L"cm\u00B3"},
    {.name = "Physical Material", .text = materialText},
    {.name = "Length", .text = lengthText},
    {.name = "Width", .text = widthText},
    {.name = "Height", .text = heightText},
    {.name = "Bounding Box", .text = boundingBoxText},
};

/// Null where no built-in column has that name.
const BuiltInColumn* findBuiltIn(const std::string& name) {
    const auto* const column = std::ranges::find_if(
        kBuiltInColumns, [&name](const BuiltInColumn& each) { return each.name == name; });
    return column == std::end(kBuiltInColumns) ? nullptr : column;
}

constexpr const char* kModelPropertyHeading = "--- Model Property ---";
constexpr const char* kUserPropertyHeading = "--- User Property ---";

void appendOffered(std::vector<std::string>& entries, Offered offered) {
    for (const BuiltInColumn& column : kBuiltInColumns) {
        if (column.offered == offered) {
            entries.emplace_back(column.name);
        }
    }
}

std::string propertyText(const BomRow& row, const std::string& key) {
    const auto entry = std::find_if(row.properties.rbegin(), row.properties.rend(),
                                    [&key](const PropertyEntry& each) { return each.name == key; });
    return entry == row.properties.rend() ? std::string() : entry->value;
}

}  // namespace

std::string withoutPrefix(const std::string& key) {
    constexpr std::size_t kPrefixLength = 5;
    return substringFrom(key, kPrefixLength);
}

Column columnOf(const std::string& item) {
    const auto separator = item.find(';');
    if (separator == std::string::npos) {
        return {.key = item, .label = item};
    }
    return {.key = item.substr(0, separator), .label = item.substr(separator + 1)};
}

std::string columnItem(const std::string& name, const std::string& label) {
    return kPropertyPrefix + name + ";" + label;
}

bool isBuiltInName(const std::string& name) { return findBuiltIn(name) != nullptr; }

std::vector<std::string> offeredEntries(const std::vector<std::string>& userProperties) {
    std::vector<std::string> entries = {kSelectOne};
    appendOffered(entries, Offered::First);
    entries.emplace_back(kModelPropertyHeading);
    appendOffered(entries, Offered::AsModelProperty);
    entries.emplace_back(kUserPropertyHeading);
    entries.insert(entries.end(), userProperties.begin(), userProperties.end());
    return entries;
}

bool isHeading(const std::string& entry) {
    return entry == kSelectOne || entry == kModelPropertyHeading || entry == kUserPropertyHeading;
}

std::string labelWithUnit(const std::string& label) {
    // The label decides and not the key: a column that the user renamed shows no unit.
    const BuiltInColumn* const column = findBuiltIn(label);
    return column && !column->unit.empty() ? label + " [" + toUtf8(column->unit) + "]" : label;
}

std::string bomCellValue(const BomRow& row, const std::string& key) {
    const BuiltInColumn* const column = findBuiltIn(withoutPrefix(key));
    return column && column->text ? column->text(row) : propertyText(row, key);
}

}  // namespace tarnix
