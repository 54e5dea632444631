#include "host/import/design_naming.h"

#include "host/design/naming.h"

#include <map>
#include <string>
#include <utility>

namespace host {

void assignNamesAndNumbers(DesignData& design) {
    std::map<std::pair<std::string, std::string>, int> alike;
    for (const ComponentData& component : design.components) {
        ++alike[{component.partNumber, component.name}];
    }
    ComponentNames names;
    for (ComponentData& component : design.components) {
        component.hasExplicitPartNumber =
            !component.partNumber.empty() && alike[{component.partNumber, component.name}] == 1;
        component.name = names.claim(component.name);
        if (!component.hasExplicitPartNumber) {
            component.partNumber = component.name;
        }
    }
    numberInstances(design);
}

}  // namespace host
