#include "host/import/reader/materials.h"

#include <STEPConstruct_UnitContext.hxx>
#include <StepBasic_ConversionBasedUnit.hxx>
#include <StepBasic_ConversionBasedUnitAndLengthUnit.hxx>
#include <StepBasic_ConversionBasedUnitAndMassUnit.hxx>
#include <StepBasic_DerivedUnit.hxx>
#include <StepBasic_DerivedUnitElement.hxx>
#include <StepBasic_MeasureWithUnit.hxx>
#include <StepBasic_SiUnit.hxx>
#include <StepBasic_SiUnitAndLengthUnit.hxx>
#include <StepBasic_SiUnitAndMassUnit.hxx>
#include <StepRepr_CharacterizedDefinition.hxx>
#include <StepRepr_DescriptiveRepresentationItem.hxx>
#include <StepRepr_HArray1OfRepresentationItem.hxx>
#include <StepRepr_MeasureRepresentationItem.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_PropertyDefinition.hxx>
#include <StepRepr_PropertyDefinitionRepresentation.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_RepresentedDefinition.hxx>
#include <StepRepr_ShapeAspect.hxx>

#include <cmath>

namespace step {
namespace {

template <class T>
Handle(T) as(const Handle(Standard_Transient) & entity) {
    return Handle(T)::DownCast(entity);
}

bool isMass(const Handle(StepBasic_NamedUnit) & unit) {
    return !as<StepBasic_SiUnitAndMassUnit>(unit).IsNull() ||
           !as<StepBasic_ConversionBasedUnitAndMassUnit>(unit).IsNull();
}

bool isLength(const Handle(StepBasic_NamedUnit) & unit) {
    return !as<StepBasic_SiUnitAndLengthUnit>(unit).IsNull() ||
           !as<StepBasic_ConversionBasedUnitAndLengthUnit>(unit).IsNull();
}

/// The unit in gram or metre; none when it is neither of the SI nor defined by such a unit.
std::optional<double> basicFactor(const Handle(StepBasic_NamedUnit) & unit) {
    if (const auto si = as<StepBasic_SiUnit>(unit); !si.IsNull()) {
        return si->HasPrefix() ? STEPConstruct_UnitContext::ConvertSiPrefix(si->Prefix()) : 1.0;
    }
    const auto converted = as<StepBasic_ConversionBasedUnit>(unit);
    if (converted.IsNull() || converted->ConversionFactor().IsNull()) {
        return std::nullopt;
    }
    const Handle(StepBasic_MeasureWithUnit) measure = converted->ConversionFactor();
    const auto si = as<StepBasic_SiUnit>(measure->UnitComponent().NamedUnit());
    const std::optional<double> base = si.IsNull() ? std::nullopt : basicFactor(si);
    return base ? std::optional(*base * measure->ValueComponent()) : std::nullopt;
}

/// How many of the unit make one kg/cm3.
std::optional<double> unitsPerDensity(const Handle(StepBasic_DerivedUnit) & unit) {
    if (unit.IsNull() || unit->Elements().IsNull()) {
        return std::nullopt;
    }
    std::optional<double> kilograms;
    std::optional<double> centimetres;
    for (int number = 1; number <= unit->NbElements(); ++number) {
        const Handle(StepBasic_DerivedUnitElement) element = unit->ElementsValue(number);
        const std::optional<double> factor =
            element.IsNull() ? std::nullopt : basicFactor(element->Unit());
        if (factor && isMass(element->Unit())) {
            kilograms = *factor / 1000;
        } else if (factor && isLength(element->Unit())) {
            centimetres = *factor * 100;
        }
    }
    if (!kilograms || !centimetres) {
        return std::nullopt;
    }
    return std::pow(*centimetres, 3) / *kilograms;
}

std::optional<double> densityOf(const StepRepr_Representation& representation) {
    for (int number = 1; number <= representation.NbItems(); ++number) {
        const auto item = as<StepRepr_MeasureRepresentationItem>(representation.ItemsValue(number));
        if (item.IsNull() || item->Measure().IsNull()) {
            continue;
        }
        const std::optional<double> units =
            unitsPerDensity(item->Measure()->UnitComponent().DerivedUnit());
        const double density = item->Measure()->ValueComponent() / units.value_or(0);
        if (units && std::isfinite(density) && density > 0) {
            return density;
        }
    }
    return std::nullopt;
}

std::string nameOf(const StepRepr_Representation& representation, const StepFile& file) {
    for (int number = 1; number <= representation.NbItems(); ++number) {
        const auto item =
            as<StepRepr_DescriptiveRepresentationItem>(representation.ItemsValue(number));
        if (item.IsNull()) {
            continue;
        }
        const int label = file.label(item);
        const std::string name = file.texts.text(label, 0).value_or("");
        return name.empty() ? file.texts.text(label, 1).value_or("") : name;
    }
    return {};
}

Handle(StepBasic_ProductDefinition)
    productOf(const Handle(StepRepr_ProductDefinitionShape) & shape) {
    return shape.IsNull() ? nullptr : shape->Definition().ProductDefinition();
}

/// The product that a property belongs to, directly or through its shape or a piece of it.
Handle(StepBasic_ProductDefinition) productOf(const StepRepr_PropertyDefinition& property) {
    const StepRepr_CharacterizedDefinition owner = property.Definition();
    if (!owner.ProductDefinition().IsNull()) {
        return owner.ProductDefinition();
    }
    if (const Handle(StepRepr_ShapeAspect) aspect = owner.ShapeAspect(); !aspect.IsNull()) {
        return productOf(aspect->OfShape());
    }
    return productOf(owner.ProductDefinitionShape());
}

}  // namespace

std::unordered_map<const StepBasic_ProductDefinition*, Material> readMaterials(
    const StepFile& file) {
    std::unordered_map<const StepBasic_ProductDefinition*, Material> materials;
    for (int number = 1; number <= file.model->NbEntities(); ++number) {
        const auto link = as<StepRepr_PropertyDefinitionRepresentation>(file.model->Value(number));
        if (link.IsNull() || link->Definition().PropertyDefinition().IsNull() ||
            link->UsedRepresentation().IsNull() || link->UsedRepresentation()->Items().IsNull() ||
            link->UsedRepresentation()->Name().IsNull()) {
            continue;
        }
        const StepRepr_Representation& representation = *link->UsedRepresentation();
        const TCollection_AsciiString& title = representation.Name()->String();
        const Handle(StepBasic_ProductDefinition) owner =
            productOf(*link->Definition().PropertyDefinition());
        if (owner.IsNull()) {
            continue;
        }
        Material& material = materials[owner.get()];
        if (title.IsEqual("material name") && material.name.empty()) {
            material.name = nameOf(representation, file);
        } else if (title.IsEqual("density") && !material.density) {
            material.density = densityOf(representation);
        }
    }
    return materials;
}

}  // namespace step
