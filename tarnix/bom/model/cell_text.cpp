#include "tarnix/bom/model/cell_text.h"

#include "tarnix/bom/model/property_keys.h"
#include "tarnix/text/numbers.h"

#include <algorithm>

namespace tarnix {
namespace {

using adsk::core::BoundingBox3D;
using adsk::core::Material;
using adsk::core::Point3D;
using adsk::core::Ptr;
using adsk::fusion::LowCalculationAccuracy;
using adsk::fusion::PhysicalProperties;

Ptr<PhysicalProperties> physicalProperties(const BomRow& row) {
    return row.component->getPhysicalProperties(LowCalculationAccuracy);
}

std::string densityText(const BomRow& row) {
    constexpr double kPerCubicMetre = 1000000;  // cubic centimetres
    return formatFixed(physicalProperties(row)->density() * kPerCubicMetre, 2);
}

std::string millimetres(double centimetres) { return formatFixed(centimetres * 10, 1); }

/// The extents of the component's box; `name` tells which of them.
std::string sizeText(const BomRow& row, const std::string& name) {
    const Ptr<BoundingBox3D> box = row.component->boundingBox();
    const Ptr<Point3D> min = box->minPoint();
    const Ptr<Point3D> max = box->maxPoint();
    std::string length = millimetres(max->x() - min->x());
    std::string width = millimetres(max->y() - min->y());
    std::string height = millimetres(max->z() - min->z());
    if (name == "Length") {
        return length;
    }
    if (name == "Width") {
        return width;
    }
    if (name == "Height") {
        return height;
    }
    return length + " x " + width + " x " + height;
}

std::string materialText(const BomRow& row) {
    const Ptr<Material> material = row.component->material();
    return material ? material->name() : std::string();
}

std::string propertyText(const BomRow& row, const std::string& key) {
    const auto entry = std::find_if(row.properties.rbegin(), row.properties.rend(),
                                    [&key](const PropertyEntry& each) { return each.name == key; });
    return entry == row.properties.rend() ? std::string() : entry->value;
}

}  // namespace

std::string bomCellValue(const BomRow& row, const std::string& key) {
    const std::string name = withoutPrefix(key);
    if (name == "Quantity") {
        return decimal(row.quantity);
    }
    if (name == "Part Name") {
        return row.component->name();
    }
    if (name == "Description") {
        return row.component->description();
    }
    if (name == "Area") {
        return formatFixed(physicalProperties(row)->area(), 2);
    }
    if (name == "Density") {
        return densityText(row);
    }
    if (name == "Mass") {
        return formatFixed(physicalProperties(row)->mass(), 3);
    }
    if (name == "Volume") {
        return formatFixed(physicalProperties(row)->volume(), 3);
    }
    if (name == "Length" || name == "Width" || name == "Height" || name == "Bounding Box") {
        return sizeText(row, name);
    }
    if (name == "Physical Material") {
        return materialText(row);
    }
    return propertyText(row, key);
}

}  // namespace tarnix
