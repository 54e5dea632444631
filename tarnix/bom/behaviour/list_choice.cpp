#include "tarnix/bom/behaviour/list_choice.h"

#include <cstddef>

namespace tarnix {

using adsk::core::ListItem;
using adsk::core::ListItems;
using adsk::core::Ptr;

Ptr<ListItem> firstSelected(const Ptr<ListItems>& items) {
    const std::size_t count = items->count();
    for (std::size_t i = 0; i < count; ++i) {
        Ptr<ListItem> item = items->item(i);
        if (item->isSelected()) {
            return item;
        }
    }
    return nullptr;
}

}  // namespace tarnix
