#include "parts/row_values.h"

#include "parts/natural_order.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <utility>

namespace parts {
namespace {

/// Different ones, as parents of one number may have.
std::string together(const std::set<std::int64_t>& quantities) {
    std::string result;
    for (const std::int64_t quantity : quantities) {
        result += (result.empty() ? "" : ", ") + std::to_string(quantity);
    }
    return result;
}

std::string together(const std::set<std::string, NaturalLess>& texts) {
    std::string result;
    for (const std::string& text : texts) {
        result += (result.empty() ? "" : "; ") + text;
    }
    return result;
}

Value whole(std::int64_t number) { return static_cast<double>(number); }

double scaled(double value, const Unit* unit) {
    return unit == nullptr ? value : value * unit->factor;
}

Cell numberCell(const Column& column, double value, const Unit* unit) {
    const int decimals = infoOf(column.field).dimension == Dimension::None ? kWhole : kSignificant;
    return Number{.value = scaled(value, unit), .decimals = column.decimals.value_or(decimals)};
}

Cell extentsCell(const Column& column, Extents extents, const Unit* unit) {
    for (double& value : extents.values) {
        value = scaled(value, unit);
    }
    extents.decimals = column.decimals.value_or(kSignificant);
    return extents;
}

}  // namespace

Value RowValues::of(const Column& column, const PartsRow& row) {
    switch (column.field) {
        case Field::Size:
        case Field::X:
        case Field::Y:
        case Field::Z:
            return sizeOf(column.field, row);
        case Field::Thumbnail:
            return pictureOf(row);
        default:
            return infoOf(column.field).isNumber ? numberOf(column.field, row)
                                                 : textOf(column, row);
    }
}

Cell RowValues::cell(const Column& column, const PartsRow& row) {
    const Unit* const unit = column.unit != nullptr
                                 ? column.unit
                                 : context_.request.units.of(infoOf(column.field).dimension);
    Value value = of(column, row);
    if (auto* const text = std::get_if<std::string>(&value)) {
        return text->empty() ? Cell() : Cell(std::move(*text));
    }
    if (const auto* const number = std::get_if<double>(&value)) {
        return numberCell(column, *number, unit);
    }
    if (const auto* const extents = std::get_if<Extents>(&value)) {
        return extentsCell(column, *extents, unit);
    }
    const auto* const picture = std::get_if<Picture>(&value);
    return picture == nullptr ? Cell() : Cell(*picture);
}

Measured RowValues::measured(const PartsRow& row, std::size_t component) {
    return row.kind == RowKind::OwnBodies ? context_.measures.own(component)
                                          : context_.measures.whole(component);
}

Measured RowValues::sum(const PartsRow& row) {
    Measured sum;
    for (const Member& member : row.members) {
        const Measured one = measured(row, member.component);
        const auto count = static_cast<double>(member.quantity);
        sum.area += count * one.area;
        sum.volume += count * one.volume;
        sum.mass += count * one.mass;
        sum.bodies += static_cast<std::size_t>(member.quantity) * one.bodies;
        sum.hasGeometry = sum.hasGeometry || one.hasGeometry;
        sum.isUnmeasured = sum.isUnmeasured || one.isUnmeasured;
    }
    return sum;
}

/// Means over the members; nothing where there is nothing to measure, as in a part without a shape,
/// or where not all of the bodies have measures.
Value RowValues::meanOf(Field field, const PartsRow& row) {
    const bool isOne = row.members.size() == 1;
    const Measured all = isOne ? measured(row, row.component) : sum(row);
    if (all.isUnmeasured || (!all.hasGeometry && field != Field::Bodies)) {
        return {};
    }
    const double count = isOne ? 1 : static_cast<double>(row.quantity);
    switch (field) {
        case Field::Mass:
            return all.mass / count;
        case Field::Volume:
            return all.volume / count;
        case Field::Area:
            return all.area / count;
        case Field::Bodies:
            return whole(static_cast<std::int64_t>(measured(row, row.component).bodies));
        default:
            break;
    }
    return all.volume > 0 ? Value(all.mass / all.volume) : Value();
}

Value RowValues::numberOf(Field field, const PartsRow& row) {
    switch (field) {
        case Field::Quantity:
            return whole(row.quantity);
        case Field::QuantityPerParent:
            return row.perParent == 0 ? Value() : whole(row.perParent);
        case Field::Level:
            return whole(row.level);
        case Field::TotalMass: {
            const Measured all = sum(row);
            return all.isUnmeasured || !all.hasGeometry ? Value() : Value(all.mass);
        }
        default:
            return meanOf(field, row);
    }
}

/// Nothing where not all of the bodies have measures: the box around the others would be too small.
Value RowValues::sizeOf(Field field, const PartsRow& row) {
    if (measured(row, row.component).isUnmeasured) {
        return {};
    }
    const std::optional<host::Box> box = row.kind == RowKind::OwnBodies
                                             ? context_.measures.ownBox(row.component)
                                             : context_.measures.wholeBox(row.component);
    if (!box) {
        return {};
    }
    Extents extents;
    for (std::size_t axis = 0; axis < extents.values.size(); ++axis) {
        extents.values.at(axis) = box->max.at(axis) - box->min.at(axis);
    }
    if (field != Field::Size) {
        const int axis = static_cast<int>(field) - static_cast<int>(Field::X);
        return extents.values.at(static_cast<std::size_t>(axis));
    }
    std::ranges::sort(extents.values, std::greater());
    return extents;
}

/// Of a component without bodies only what its maker chose: an assembly is of no material.
std::string RowValues::materialOf(std::size_t component) const {
    const host::ComponentData& data = context_.at(component);
    const bool isShown = data.material && (data.geometry != nullptr ||
                                           (data.children.empty() && !data.material->nameAssumed));
    return isShown ? data.material->name : "";
}

std::string RowValues::memberText(const Column& column, std::size_t component) const {
    const host::ComponentData& data = context_.at(component);
    switch (column.field) {
        case Field::Description:
            return data.description;
        case Field::Material:
            return materialOf(component);
        case Field::Structure:
            return nameOf(context_.tree.structure(component));
        case Field::Document:
            return data.document.empty() ? context_.design.name : data.document;
        default:
            return propertyOf(data, column.property).value_or("");
    }
}

std::string RowValues::joined(const Column& column, const PartsRow& row) const {
    if (row.members.size() == 1) {
        return memberText(column, row.component);
    }
    std::set<std::string, NaturalLess> texts;
    for (const Member& member : row.members) {
        texts.insert(memberText(column, member.component));
    }
    texts.erase("");
    return together(texts);
}

std::string RowValues::usesText(const PartsRow& row) const {
    std::map<std::string, std::set<std::int64_t>, NaturalLess> parents;
    for (const Use& use : row.usedIn) {
        parents[context_.numberOf(use.component)].insert(use.quantity);
    }
    std::string text;
    for (const auto& [parent, quantities] : parents) {
        text += (text.empty() ? "" : "; ") + parent + " (" + together(quantities) + ")";
    }
    return text;
}

Value RowValues::textOf(const Column& column, const PartsRow& row) {
    switch (column.field) {
        case Field::Item:
            return row.item;
        case Field::PartNumber:
            return context_.numberOf(row.component);
        case Field::PartName:
            return context_.at(row.component).name;
        case Field::Path:
            return row.path;
        case Field::UsedIn:
            return usesText(row);
        default:
            return joined(column, row);
    }
}

Value RowValues::pictureOf(const PartsRow& row) const {
    if (!row.shape) {
        return {};
    }
    const auto found = context_.shapes.pictures.find(*row.shape);
    if (found == context_.shapes.pictures.end()) {
        return {};
    }
    return Picture{.png = found->second, .shape = *row.shape};
}

}  // namespace parts
