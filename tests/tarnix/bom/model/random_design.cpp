#include "tests/tarnix/bom/model/random_design.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace {

using host::ComponentData;
using host::DesignData;
using host::OccurrenceData;

/// Below `bound`; the library's distributions differ from one compiler to the next.
std::size_t below(std::mt19937& random, std::size_t bound) { return random() % bound; }

bool oneIn(std::mt19937& random, std::size_t chances) { return below(random, chances) == 0; }

template <std::size_t Size>
const char* pick(std::mt19937& random, const std::array<const char*, Size>& choices) {
    return choices[below(random, Size)];
}

/// A design takes its names from the first eight alone, or from all.
constexpr std::array<const char*, 16> kNames = {
    "Asm",   "Asm:1+Bolt", "Bolt",      "A",      "A:1+B",   "B",        "A+B", "empty",
    "Asm:1", "As",         "empty tin", "Bolt:1", "Bolt M8", "Bolt+Nut", "Nut", "Big Asm"};

/// A design takes its part numbers from the first two alone, or from all.
constexpr std::array<const char*, 8> kPartNumbers = {"P", "", "P", "Q", "R", "S", "1", "Asm"};

constexpr std::array<const char*, 6> kDescriptions = {
    "", "long", "short", "1", "***different***", "a ***different*** one"};

constexpr std::array<const char*, 5> kStructures = {"Produce", "Buy", "AsPart", "Divided",
                                                    "Reference"};

constexpr std::array<const char*, 4> kCustomKeys = {"QEMA_Colour", "QEMA_Supplier", "QEMA_Mass",
                                                    "QEMA_"};

constexpr std::array<const char*, 5> kValues = {"", "red", "blue", "1", "***different***"};

void addAttribute(ComponentData& component, const char* name, const char* value) {
    component.attributes.push_back(
        {.group = "QEMA_PropertiesAttributesGroup", .name = name, .value = value});
}

/// None, all five as the dialog leaves them, or some in any state, two of them at once included.
void addStructure(std::mt19937& random, ComponentData& component) {
    const std::size_t kind = below(random, 4);
    if (kind == 0) {
        return;
    }
    // The two that change what is shown come more often.
    const std::size_t set = oneIn(random, 2) ? below(random, kStructures.size())
                                             : kStructures.size() - 2 + below(random, 2);
    for (std::size_t i = 0; i < kStructures.size(); ++i) {
        if (kind == 3) {
            if (oneIn(random, 2)) {
                addAttribute(component, kStructures[i], oneIn(random, 2) ? "1" : "0");
            }
        } else {
            addAttribute(component, kStructures[i], i == set ? "1" : "0");
        }
    }
}

void addCustomProperties(std::mt19937& random, ComponentData& component) {
    for (const char* key : kCustomKeys) {
        if (oneIn(random, 4)) {
            addAttribute(component, key, pick(random, kValues));
        }
    }
}

ComponentData randomComponent(std::mt19937& random, const std::string& name,
                              std::size_t partNumbers) {
    ComponentData component;
    component.name = name;
    component.partNumber = kPartNumbers[below(random, partNumbers)];
    component.description = pick(random, kDescriptions);
    const bool customFirst = oneIn(random, 2);
    if (customFirst) {
        addCustomProperties(random, component);
    }
    addStructure(random, component);
    if (!customFirst) {
        addCustomProperties(random, component);
    }
    return component;
}

/// Fisher-Yates by hand: std::shuffle differs from one library to the next.
std::vector<std::string> shuffledNames(std::mt19937& random) {
    const std::size_t count = oneIn(random, 3) ? kNames.size() / 2 : kNames.size();
    std::vector<std::string> names(kNames.begin(), kNames.begin() + count);
    for (std::size_t i = names.size(); i > 1; --i) {
        std::swap(names[i - 1], names[below(random, i)]);
    }
    return names;
}

}  // namespace

DesignData randomDesign(std::mt19937& random) {
    DesignData design;
    design.name = "Design";
    design.unit = "mm";
    design.components.push_back({});
    design.components.front().name = "Design";
    const std::vector<std::string> names = shuffledNames(random);
    const std::size_t count = 2 + below(random, 7);
    const std::size_t partNumbers = oneIn(random, 3) ? 2 : kPartNumbers.size();
    for (std::size_t i = 0; i < count; ++i) {
        design.components.push_back(randomComponent(random, names[i], partNumbers));
    }
    std::map<std::size_t, int> uses;
    // Children come from later components, so that no assembly contains itself.
    for (std::size_t parent = 0; parent < count; ++parent) {
        const bool isAssembly = parent == 0 || !oneIn(random, 3);
        const std::size_t children = isAssembly ? 1 + below(random, parent == 0 ? 6 : 4) : 0;
        for (std::size_t i = 0; i < children; ++i) {
            OccurrenceData child;
            child.component = parent + 1 + below(random, count - parent);
            child.instance = ++uses[child.component];
            child.absent = oneIn(random, 12);
            design.components[parent].children.push_back(child);
        }
    }
    return design;
}
