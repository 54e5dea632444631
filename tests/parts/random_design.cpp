#include "tests/parts/random_design.h"

#include "host/design/geometry.h"
#include "host/design/naming.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <numeric>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace test_support {
namespace {

constexpr const char* kGroup = "QEMA_PropertiesAttributesGroup";

/// Numbers that are the same with every standard library.
class Dice {
public:
    explicit Dice(unsigned seed) : random_(seed) {}

    /// One of 0 to sides - 1.
    unsigned roll(unsigned sides) { return static_cast<unsigned>(random_() % sides); }

private:
    std::mt19937 random_;
};

void chooseStructure(host::ComponentData& component, Dice& dice) {
    constexpr std::array kStructures = {"Produce", "Buy", "AsPart", "Divided", "Reference"};
    const unsigned chosen = dice.roll(12);  // more than half have none
    for (std::size_t index = 0; index < kStructures.size(); ++index) {
        component.attributes.push_back(
            {.group = kGroup, .name = kStructures.at(index), .value = chosen == index ? "1" : "0"});
    }
}

host::ComponentData randomComponent(std::size_t index, Dice& dice) {
    host::ComponentData component;
    component.name = "Component " + std::to_string(index);
    // Every fourth has none, the others share twelve.
    component.partNumber = dice.roll(4) == 0 ? "" : "P-" + std::to_string(dice.roll(12));
    component.material = host::MaterialData{.name = "M" + std::to_string(dice.roll(3)),
                                            .density = 0.001 * (1 + dice.roll(8))};
    if (dice.roll(3) != 0) {
        component.geometry =
            host::boxGeometry(1 + dice.roll(4), 1 + dice.roll(4), 1 + dice.roll(4));
    }
    chooseStructure(component, dice);
    return component;
}

/// Children have higher indices, so that nothing contains itself.
void addChildren(host::DesignData& design, std::size_t parent, Dice& dice) {
    const auto later = static_cast<unsigned>(design.components.size() - parent - 1);
    const unsigned children = later == 0 || (parent > 0 && dice.roll(2) == 0) ? 0 : dice.roll(6);
    for (unsigned child = 0; child < children; ++child) {
        host::OccurrenceData occurrence;
        occurrence.component = parent + 1 + dice.roll(later);
        occurrence.absent = dice.roll(15) == 0;
        design.components[parent].children.push_back(occurrence);
    }
}

}  // namespace

host::DesignData randomDesign(unsigned seed) {
    Dice dice(seed);
    host::DesignData design;
    design.name = "Random";
    const std::size_t count = 2 + dice.roll(13);
    for (std::size_t index = 0; index < count; ++index) {
        design.components.push_back(randomComponent(index, dice));
    }
    for (std::size_t index = 0; index < count; ++index) {
        addChildren(design, index, dice);
    }
    host::numberInstances(design);
    return design;
}

host::DesignData shuffled(host::DesignData design, unsigned seed) {
    std::mt19937 random(seed);
    std::vector<std::size_t> order(design.components.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    // The first one is the root component.
    std::shuffle(std::next(order.begin()), order.end(), random);
    std::vector<host::ComponentData> components(order.size());
    for (std::size_t index = 0; index < order.size(); ++index) {
        host::ComponentData& component = components[order[index]];
        component = std::move(design.components[index]);
        for (host::OccurrenceData& child : component.children) {
            child.component = order[child.component];
        }
        std::shuffle(component.children.begin(), component.children.end(), random);
    }
    design.components = std::move(components);
    return design;
}

}  // namespace test_support
