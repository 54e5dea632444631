#include "host/import/reader/products.h"

#include "host/import/reader/declared_bodies.h"
#include "host/import/reader/text_encoding.h"

#include <StepBasic_Product.hxx>
#include <StepBasic_ProductDefinitionFormation.hxx>
#include <StepRepr_CharacterizedDefinition.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_PropertyDefinition.hxx>
#include <StepRepr_RepresentedDefinition.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>
#include <TCollection_HAsciiString.hxx>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace step {
namespace {

using Index = std::unordered_map<const StepBasic_ProductDefinition*, std::size_t>;

template <class T>
Handle(T) entity(const StepFile& file, int number) {
    return Handle(T)::DownCast(file.model->Value(number));
}

/// The text from the file's bytes, or for an instance of a complex kind as Open CASCADE read it.
std::string productText(const StepFile& file, const Handle(StepBasic_Product) & product,
                        std::size_t parameter, const Handle(TCollection_HAsciiString) & read) {
    const std::string other = read.IsNull() ? "" : cleaned(read->ToCString());
    return file.texts.text(file.label(product), parameter).value_or(other);
}

Component componentOf(const StepFile& file, const Handle(StepBasic_ProductDefinition) & definition,
                      const Handle(StepBasic_Product) & product) {
    Component component;
    component.definition = definition;
    component.id = productText(file, product, 0, product->Id());
    component.name = productText(file, product, 1, product->Name());
    if (component.name.empty()) {
        component.name = component.id.empty() ? "Component" : component.id;
    }
    component.description = productText(file, product, 2, product->Description());
    return component;
}

Index addComponents(Assembly& assembly) {
    const StepFile& file = *assembly.files.back();
    const auto materials = readMaterials(file);
    Index index;
    for (int number = 1; number <= file.model->NbEntities(); ++number) {
        const auto definition = entity<StepBasic_ProductDefinition>(file, number);
        if (definition.IsNull() || definition->Formation().IsNull() ||
            definition->Formation()->OfProduct().IsNull()) {
            continue;
        }
        Component component = componentOf(file, definition, definition->Formation()->OfProduct());
        component.file = assembly.files.size() - 1;
        if (const auto found = materials.find(definition.get()); found != materials.end()) {
            component.material = found->second;
        }
        index[definition.get()] = assembly.components.size();
        assembly.components.push_back(std::move(component));
    }
    return index;
}

/// Notes the uses in the order of the file; returns the components that are used.
std::unordered_set<std::size_t> addUses(Assembly& assembly, const Index& index) {
    const StepFile& file = *assembly.files.back();
    std::unordered_set<std::size_t> used;
    for (int number = 1; number <= file.model->NbEntities(); ++number) {
        const auto usage = entity<StepRepr_NextAssemblyUsageOccurrence>(file, number);
        if (usage.IsNull()) {
            continue;
        }
        const auto parent = index.find(usage->RelatingProductDefinition().get());
        const auto child = index.find(usage->RelatedProductDefinition().get());
        if (parent == index.end() || child == index.end()) {
            assembly.warnings.push_back({.code = "missing-product",
                                         .text = "places a product that is missing (#" +
                                                 std::to_string(file.label(usage)) +
                                                 "); it is left out"});
            continue;
        }
        assembly.components[parent->second].uses.push_back({child->second, usage, {}});
        used.insert(child->second);
    }
    return used;
}

void noteDescriptions(Assembly& assembly, const Index& index) {
    const StepFile& file = *assembly.files.back();
    const DeclaredBodies declared(file);
    for (int number = 1; number <= file.model->NbEntities(); ++number) {
        const auto link = entity<StepShape_ShapeDefinitionRepresentation>(file, number);
        if (link.IsNull() || link->Definition().PropertyDefinition().IsNull()) {
            continue;
        }
        const StepRepr_CharacterizedDefinition owner =
            link->Definition().PropertyDefinition()->Definition();
        const auto found = index.find(owner.ProductDefinition().get());
        if (found != index.end()) {
            Component& component = assembly.components[found->second];
            component.described = true;
            const auto bodies = declared.in(link->UsedRepresentation());
            component.bodies.insert(component.bodies.end(), bodies.begin(), bodies.end());
        }
    }
}

}  // namespace

std::vector<std::size_t> addProducts(Assembly& assembly) {
    const std::size_t first = assembly.components.size();
    const Index index = addComponents(assembly);
    const std::unordered_set<std::size_t> used = addUses(assembly, index);
    noteDescriptions(assembly, index);
    std::vector<std::size_t> roots;
    for (std::size_t at = first; at < assembly.components.size(); ++at) {
        if (!used.contains(at)) {
            roots.push_back(at);
        }
    }
    const auto holdsNothing = [&assembly](std::size_t root) {
        return assembly.components[root].uses.empty() && !assembly.components[root].described;
    };
    if (!std::all_of(roots.begin(), roots.end(), holdsNothing)) {
        std::erase_if(roots, holdsNothing);
    }
    return roots;
}

}  // namespace step
