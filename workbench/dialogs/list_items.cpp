#include "workbench/dialogs/list_items.h"

#include <cstddef>

namespace workbench {

std::vector<std::string> itemNames(const adsk::core::Ptr<adsk::core::ListItems>& items) {
    std::vector<std::string> names;
    for (std::size_t i = 0; items && i < items->count(); ++i) {
        names.push_back(items->item(i)->name());
    }
    return names;
}

}  // namespace workbench
