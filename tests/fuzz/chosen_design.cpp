#include "tests/fuzz/chosen_design.h"

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <utility>

namespace fuzz {
namespace {

constexpr std::array kNames = {"Asm", "Bolt", "Bolt M8", "empty", "A:1+B", "Nano bolt", "1", "As"};
constexpr std::array kNumbers = {"P", "", "Q", "P-10", "nan", "1.2.1", "0x1A", "R"};
constexpr std::array kDescriptions = {"", "long text of a part", "12 mm", "***different***", "inf"};
constexpr std::array kStructures = {"Produce", "Buy", "AsPart", "Divided", "Reference"};
constexpr std::array kValues = {"", "1", "0", "Acme", "1e999", "-3", "***different***"};
constexpr std::array kProperties = {"QEMA_Supplier", "QEMA_Mass", "QEMA_", "QEMA_a_b"};
constexpr const char* kGroup = "QEMA_PropertiesAttributesGroup";

host::ComponentData chosenComponent(Choices& choices, std::size_t index) {
    host::ComponentData made;
    made.name = kNames[index];
    made.partNumber = choices.pick(kNumbers);
    made.description = choices.pick(kDescriptions);
    if (choices.oneIn(2)) {
        made.attributes.push_back(
            {.group = kGroup, .name = choices.pick(kStructures), .value = "1"});
    }
    if (choices.oneIn(2)) {
        made.attributes.push_back(
            {.group = kGroup, .name = choices.pick(kProperties), .value = choices.pick(kValues)});
    }
    return made;
}

}  // namespace

host::DesignData chosenDesign(Choices& choices) {
    host::DesignData design;
    design.name = "Design";
    design.components.emplace_back().name = "Design";
    const std::size_t count = 1 + choices.below(kNames.size());
    for (std::size_t i = 0; i < count; ++i) {
        design.components.push_back(chosenComponent(choices, i));
    }
    std::map<std::size_t, int> uses;
    // Children come later in the list, so that no assembly contains itself.
    for (std::size_t parent = 0; parent < count; ++parent) {
        const std::size_t children = choices.below(4) + (parent == 0 ? 1 : 0);
        for (std::size_t i = 0; i < children; ++i) {
            host::OccurrenceData child;
            child.component = parent + 1 + choices.below(count - parent);
            child.instance = ++uses[child.component];
            child.absent = choices.oneIn(12);
            design.components[parent].children.push_back(child);
        }
    }
    return design;
}

}  // namespace fuzz
