#include "host/import/reader/materials.h"

#include "host/import/reader/unit_text.h"

#include <STEPConstruct_UnitContext.hxx>
#include <StepBasic_ConversionBasedUnit.hxx>
#include <StepBasic_ConversionBasedUnitAndLengthUnit.hxx>
#include <StepBasic_ConversionBasedUnitAndMassUnit.hxx>
#include <StepBasic_DerivedUnit.hxx>
#include <StepBasic_DerivedUnitElement.hxx>
#include <StepBasic_MeasureWithUnit.hxx>
#include <StepBasic_Product.hxx>
#include <StepBasic_ProductDefinitionFormation.hxx>
#include <StepBasic_SiUnit.hxx>
#include <StepBasic_SiUnitAndLengthUnit.hxx>
#include <StepBasic_SiUnitAndMassUnit.hxx>
#include <StepBasic_Unit.hxx>
#include <StepRepr_CharacterizedDefinition.hxx>
#include <StepRepr_DescriptiveRepresentationItem.hxx>
#include <StepRepr_HArray1OfRepresentationItem.hxx>
#include <StepRepr_MakeFromUsageOption.hxx>
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

/// How many of the unit make one kg/cm3; none for a unit that is no mass by volume.
std::optional<double> unitsPerDensity(const Handle(StepBasic_DerivedUnit) & unit) {
    constexpr double kByVolume = -3;
    if (unit.IsNull() || unit->Elements().IsNull() || unit->NbElements() != 2) {
        return std::nullopt;
    }
    std::optional<double> kilograms;
    std::optional<double> centimetres;
    for (int number = 1; number <= unit->NbElements(); ++number) {
        const Handle(StepBasic_DerivedUnitElement) element = unit->ElementsValue(number);
        const std::optional<double> factor =
            element.IsNull() ? std::nullopt : basicFactor(element->Unit());
        if (factor && isMass(element->Unit()) && element->Exponent() == 1) {
            kilograms = *factor / 1000;
        } else if (factor && isLength(element->Unit()) && element->Exponent() == kByVolume) {
            centimetres = *factor * 100;
        }
    }
    if (!kilograms || !centimetres) {
        return std::nullopt;
    }
    return std::pow(*centimetres, 3) / *kilograms;
}

void readDensity(const StepRepr_Representation& representation, Material& material) {
    for (int number = 1; number <= representation.NbItems(); ++number) {
        const auto item = as<StepRepr_MeasureRepresentationItem>(representation.ItemsValue(number));
        if (item.IsNull() || item->Measure().IsNull()) {
            continue;
        }
        const StepBasic_Unit unit = item->Measure()->UnitComponent();
        const double value = item->Measure()->ValueComponent();
        if (!material.stated) {
            material.stated = StatedDensity{.value = value, .unit = unitText(unit)};
        }
        const std::optional<double> units = unitsPerDensity(unit.DerivedUnit());
        if (units && std::isfinite(value / *units) && value > 0) {
            material.stated = StatedDensity{.value = value, .unit = unitText(unit)};
            material.density = value / *units;
            return;
        }
    }
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

/// The name of a product, or its id where it has none.
std::string productName(const StepFile& file, const StepBasic_ProductDefinition& definition) {
    if (definition.Formation().IsNull() || definition.Formation()->OfProduct().IsNull()) {
        return {};
    }
    const int label = file.label(definition.Formation()->OfProduct());
    const std::string name = file.texts.text(label, 1).value_or("");
    return name.empty() ? file.texts.text(label, 0).value_or("") : name;
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

using Materials = std::unordered_map<const StepBasic_ProductDefinition*, Material>;

void complete(Material& material, const Material& source) {
    if (material.name.empty()) {
        material.name = source.name;
    }
    if (!material.density && source.density) {
        material.density = source.density;
        material.stated = source.stated;
    } else if (!material.stated) {
        material.stated = source.stated;
    }
}

/// A product may be made from another that is its material, and says nothing of its own then.
void takeFromMaterialProducts(const StepFile& file, Materials& materials) {
    for (int number = 1; number <= file.model->NbEntities(); ++number) {
        const auto link = as<StepRepr_MakeFromUsageOption>(file.model->Value(number));
        if (link.IsNull() || link->RelatingProductDefinition().IsNull()) {
            continue;
        }
        const auto source = materials.find(link->RelatedProductDefinition().get());
        if (source == materials.end()) {
            continue;
        }
        Material found = source->second;
        if (found.name.empty()) {
            found.name = productName(file, *link->RelatedProductDefinition());
        }
        complete(materials[link->RelatingProductDefinition().get()], found);
    }
}

}  // namespace

std::unordered_map<const StepBasic_ProductDefinition*, Material> readMaterials(
    const StepFile& file) {
    Materials materials;
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
            readDensity(representation, material);
        }
    }
    takeFromMaterialProducts(file, materials);
    return materials;
}

}  // namespace step
