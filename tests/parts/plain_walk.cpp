#include "tests/parts/plain_walk.h"

#include <string>
#include <vector>

namespace test_support {
namespace {

/// The structure, where no other attribute is "1": so are the designs that are walked here.
std::string structureOf(const host::ComponentData& component) {
    for (const host::AttributeData& attribute : component.attributes) {
        if (attribute.value == "1") {
            return attribute.name;
        }
    }
    return "Produce";
}

double ownMass(const host::ComponentData& component) {
    return component.geometry != nullptr && component.material
               ? component.geometry->volume() * component.material->density
               : 0;
}

class Walk {
public:
    explicit Walk(const host::DesignData& design) : design_(design) {}

    void visit(std::size_t index, bool isListed) {
        const host::ComponentData& component = design_.components[index];
        const std::string structure = index == 0 ? "Produce" : structureOf(component);
        const bool isDivided = structure == "Divided";
        masses.all += ownMass(component);
        masses.listed += isDivided ? 0 : ownMass(component);
        const bool isOpened =
            index == 0 || isDivided || (structure == "Produce" && holdsItems(index));
        if (isListed && index != 0 && !isDivided) {
            ++(isOpened ? counts.assemblies : counts.parts)[index];
        }
        for (const std::size_t child : childrenOf(index)) {
            visit(child, isListed && isOpened);
        }
    }

    WalkedCounts counts;
    WalkedMasses masses;

private:
    [[nodiscard]] std::vector<std::size_t> childrenOf(std::size_t index) const {
        std::vector<std::size_t> children;
        for (const host::OccurrenceData& child : design_.components[index].children) {
            if (!child.absent && structureOf(design_.components[child.component]) != "Reference") {
                children.push_back(child.component);
            }
        }
        return children;
    }

    /// Whether anything below is an item of its own.
    [[nodiscard]] bool holdsItems(std::size_t index) const {
        for (const std::size_t child : childrenOf(index)) {
            if (structureOf(design_.components[child]) != "Divided" || holdsItems(child)) {
                return true;
            }
        }
        return false;
    }

    const host::DesignData& design_;
};

Walk walked(const host::DesignData& design) {
    Walk walk(design);
    walk.visit(0, /*isListed=*/true);
    return walk;
}

}  // namespace

WalkedCounts countsByWalk(const host::DesignData& design) { return walked(design).counts; }

WalkedMasses massesByWalk(const host::DesignData& design) { return walked(design).masses; }

}  // namespace test_support
