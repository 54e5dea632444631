#include "host/import/design_naming.h"

#include <map>
#include <set>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace host {
namespace {

/// Assigns names, each once.
class UniqueNames {
public:
    std::string take(const std::string& wanted) {
        std::string name = wanted;
        for (int& number = next_[wanted]; !taken_.insert(name).second;) {
            name = wanted + " (" + std::to_string(++number) + ")";
        }
        return name;
    }

private:
    std::unordered_set<std::string> taken_;
    std::unordered_map<std::string, int> next_;
};

/// Numbers uses in the order in which they appear in the tree, opened from top to bottom.
class Numbering {
public:
    explicit Numbering(std::vector<ImportedComponent>& components)
        : components_(components), uses_(components.size()), seen_(components.size()) {}

    // As deep as the tree, which the reader bounds.
    void number(std::size_t index) {
        if (seen_[index]) {
            return;
        }
        seen_[index] = true;
        for (OccurrenceData& child : components_[index].data.children) {
            child.instance = ++uses_[child.component];
            number(child.component);
        }
    }

private:
    std::vector<ImportedComponent>& components_;
    std::vector<int> uses_;
    std::vector<bool> seen_;
};

}  // namespace

std::vector<ComponentData> assignNamesAndNumbers(std::vector<ImportedComponent> components) {
    std::map<std::pair<std::string, std::string>, int> alike;
    for (const ImportedComponent& component : components) {
        ++alike[{component.id, component.name}];
    }
    Numbering numbering(components);
    for (std::size_t index = 0; index < components.size(); ++index) {
        numbering.number(index);
    }
    UniqueNames names;
    std::vector<ComponentData> result;
    for (ImportedComponent& component : components) {
        component.data.name = names.take(component.name);
        const bool isDistinct = !component.id.empty() && alike[{component.id, component.name}] == 1;
        component.data.partNumber = isDistinct ? component.id : component.data.name;
        component.data.hasExplicitPartNumber = isDistinct;
        result.push_back(std::move(component.data));
    }
    return result;
}

}  // namespace host
