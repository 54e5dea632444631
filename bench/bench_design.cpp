#include "bench/bench_design.h"

#include "host/design/geometry.h"

#include <string>
#include <utility>

namespace bench {
namespace {

using host::ComponentData;
using host::DesignData;
using host::OccurrenceData;

constexpr std::size_t kSharedParts = 100;
constexpr std::size_t kPartsBelow = 50;

ComponentData part(std::size_t number) {
    ComponentData made;
    made.name = "Part " + std::to_string(number);
    made.partNumber = "P-" + std::to_string(100000 + number);
    made.description = "Housing cover, milled from solid, edges broken, black anodised";
    made.material = host::MaterialData{.name = "Steel", .density = 0.00785};
    made.attributes = {
        {.group = "QEMA_PropertiesAttributesGroup", .name = "Produce", .value = "1"},
        {.group = "QEMA_PropertiesAttributesGroup", .name = "Buy", .value = "0"},
        {.group = "QEMA_PropertiesAttributesGroup", .name = "QEMA_Supplier", .value = "Acme"}};
    made.geometry = host::boxGeometry(1, 2, 3);
    return made;
}

void use(ComponentData& parent, std::size_t component, int instance) {
    OccurrenceData occurrence;
    occurrence.component = component;
    occurrence.instance = instance;
    parent.children.push_back(occurrence);
}

void addFlat(DesignData& design, std::size_t count, std::size_t parts) {
    for (std::size_t i = 0; i < parts; ++i) {
        design.components.push_back(part(i));
    }
    for (std::size_t i = 0; i < count; ++i) {
        use(design.components.front(), 1 + i % parts, static_cast<int>(1 + i / parts));
    }
}

/// Assemblies below a component that is there, and single parts until `count` is reached.
void addAssemblies(DesignData& design, std::size_t parent, std::size_t count) {
    const std::size_t assembly = design.components.size();
    ComponentData made = part(0);
    made.name = "Assembly";
    made.geometry = nullptr;
    for (std::size_t i = 0; i < kPartsBelow; ++i) {
        use(made, assembly + 1 + i, 1);
    }
    design.components.push_back(std::move(made));
    for (std::size_t i = 0; i < kPartsBelow; ++i) {
        design.components.push_back(part(1 + i));
    }
    const std::size_t assemblies = count / (kPartsBelow + 1);
    for (std::size_t i = 0; i < assemblies; ++i) {
        use(design.components[parent], assembly, static_cast<int>(1 + i));
    }
    // The rest are single parts, so that the design has exactly the asked size.
    for (std::size_t i = assemblies * (kPartsBelow + 1); i < count; ++i) {
        use(design.components[parent], assembly + 1 + i % kPartsBelow, static_cast<int>(2 + i));
    }
}

void addUnderOne(DesignData& design, std::size_t count) {
    ComponentData top = part(kPartsBelow + 1);
    top.name = "Top";
    top.geometry = nullptr;
    design.components.push_back(std::move(top));
    use(design.components.front(), 1, 1);
    addAssemblies(design, 1, count - 1);
}

}  // namespace

DesignData makeDesign(Shape shape, std::size_t count) {
    DesignData design;
    design.name = "Measured";
    ComponentData root;
    root.name = "Measured";
    root.partNumber = "Measured";
    design.components.push_back(std::move(root));
    switch (shape) {
        case Shape::FlatDifferent:
            addFlat(design, count, count);
            break;
        case Shape::FlatShared:
            addFlat(design, count, kSharedParts);
            break;
        case Shape::Nested:
            addAssemblies(design, 0, count);
            break;
        case Shape::UnderOne:
            addUnderOne(design, count);
            break;
    }
    return design;
}

}  // namespace bench
