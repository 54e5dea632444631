#pragma once

#include "host/design/design_data.h"

#include <string>
#include <vector>

namespace host {

/// A component as an importer found it: names may repeat, part numbers may be missing.
struct ImportedComponent {
    std::string id;    ///< empty if the file has none
    std::string name;  ///< never empty
    ComponentData data;
};

/// Gives the components their unique names and their part numbers, and their uses the instance
/// numbers, by the rules of step_import.h; returns them in the same order.
std::vector<ComponentData> assignNamesAndNumbers(std::vector<ImportedComponent> components);

}  // namespace host
