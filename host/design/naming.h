#pragma once

#include "host/design/design_data.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

/// How the host names components and their uses.
namespace host {

/// The names of a design's components, each in use once.
class ComponentNames {
public:
    /// Takes a name into use: the wanted one, or where that is taken the wanted one with the lowest
    /// free number after it, as in "Bolt (1)". Returns the name taken.
    std::string claim(const std::string& wanted);

    [[nodiscard]] bool isTaken(const std::string& name) const { return taken_.contains(name); }

    /// Makes a name free again.
    void release(const std::string& name);

private:
    std::unordered_set<std::string> taken_;
    /// For a name, the lowest number that may be free: those below are taken.
    std::unordered_map<std::string, int> nextNumber_;
};

/// Gives a component a new name; a part number that was never set goes along.
void renameComponent(ComponentData& component, const std::string& name);

/// Makes the names of all components different, as the host does: the first one keeps a name, later
/// ones get a number after it. The root component takes no part, for it is called like the
/// document.
void makeNamesUnique(DesignData& data);

/// Numbers the uses of each component over the whole design, from 1, going from the root component
/// down before going on. The children of a component are numbered once, however often it is used.
void numberInstances(DesignData& data);

}  // namespace host
