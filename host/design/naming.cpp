#include "host/design/naming.h"

#include <charconv>
#include <utility>
#include <vector>

namespace host {
namespace {

std::string numbered(const std::string& name, int number) {
    return name + " (" + std::to_string(number) + ")";
}

/// Takes "Bolt (3)" apart; false for a name without such an end.
bool splitNumber(std::string_view name, std::string& stem, int& number) {
    const std::size_t open = name.rfind(" (");
    if (open == std::string_view::npos || name.back() != ')') {
        return false;
    }
    const char* begin = name.data() + open + 2;
    const char* end = name.data() + name.size() - 1;
    const auto [rest, error] = std::from_chars(begin, end, number);
    stem = name.substr(0, open);
    return error == std::errc() && rest == end && number > 0;
}

}  // namespace

std::string ComponentNames::claim(const std::string& wanted) {
    if (taken_.insert(wanted).second) {
        return wanted;
    }
    int& number = nextNumber_.try_emplace(wanted, 1).first->second;
    while (!taken_.insert(numbered(wanted, number)).second) {
        ++number;
    }
    return numbered(wanted, number++);
}

void ComponentNames::release(const std::string& name) {
    taken_.erase(name);
    std::string stem;
    int number = 0;
    if (splitNumber(name, stem, number)) {
        const auto next = nextNumber_.find(stem);
        if (next != nextNumber_.end() && number < next->second) {
            next->second = number;
        }
    }
}

void renameComponent(ComponentData& component, const std::string& name) {
    if (!component.hasExplicitPartNumber && component.partNumber == component.name) {
        component.partNumber = name;
    }
    component.name = name;
}

void makeNamesUnique(DesignData& data) {
    ComponentNames names;
    for (std::size_t index = 1; index < data.components.size(); ++index) {
        ComponentData& component = data.components[index];
        const std::string name = names.claim(component.name);
        if (name != component.name) {
            renameComponent(component, name);
        }
    }
}

void numberInstances(DesignData& data) {
    if (data.components.empty()) {
        return;
    }
    std::vector<int> uses(data.components.size(), 0);
    std::vector<bool> seen(data.components.size(), false);
    std::vector<std::pair<std::size_t, std::size_t>> open = {{0, 0}};
    while (!open.empty()) {
        auto& [component, next] = open.back();
        std::vector<OccurrenceData>& children = data.components[component].children;
        if (next == children.size()) {
            open.pop_back();
            continue;
        }
        OccurrenceData& child = children[next++];
        if (child.absent) {
            continue;
        }
        child.instance = ++uses[child.component];
        if (!seen[child.component]) {
            seen[child.component] = true;
            open.emplace_back(child.component, 0);
        }
    }
}

}  // namespace host
