#include "host/session/browser_tree.h"

#include "host/session/session_error.h"

#include <Fusion/FusionAll.h>

#include <algorithm>
#include <cstddef>

namespace host {

using namespace adsk::core;
using namespace adsk::fusion;

namespace {

/// The names in a list, as many as fit in a line.
std::string namesIn(const Ptr<OccurrenceList>& list) {
    constexpr std::size_t kMost = 8;
    std::string names;
    for (std::size_t i = 0; i < std::min(list->count(), kMost); ++i) {
        const Ptr<Occurrence> each = list->item(i);
        names += (names.empty() ? "\"" : ", \"") + (each ? each->fullPathName() : "") + "\"";
    }
    return names.empty() ? "nothing is there"
                         : "there is " + names + (list->count() > kMost ? ", and more" : "");
}

/// The occurrence of that path in a list, or below what the path begins with. `nearest` becomes the
/// deepest list that was looked at.
Ptr<Occurrence> find(const Ptr<OccurrenceList>& list, const std::string& path,
                     Ptr<OccurrenceList>& nearest) {
    nearest = list;
    for (std::size_t i = 0; i < list->count(); ++i) {
        Ptr<Occurrence> each = list->item(i);
        if (!each) {
            continue;  // a place without an occurrence
        }
        const std::string name = each->fullPathName();
        if (path == name) {
            return each;
        }
        if (path.starts_with(name + "+")) {
            if (Ptr<Occurrence> found = find(each->childOccurrences(), path, nearest)) {
                return found;
            }
        }
    }
    return nullptr;
}

}  // namespace

Ptr<Base> inBrowserTree(const Ptr<Design>& design, const std::string& path) {
    const Ptr<Component> root = design ? design->rootComponent() : nullptr;
    if (!root) {
        throw SessionError("no design is open to pick from");
    }
    if (path.empty() || path == root->name()) {
        return root;
    }
    Ptr<OccurrenceList> nearest;
    const Ptr<Occurrence> found = find(root->occurrences()->asList(), path, nearest);
    if (!found) {
        throw SessionError("there is no occurrence \"" + path + "\": " + namesIn(nearest));
    }
    return found;
}

}  // namespace host
