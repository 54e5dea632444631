#include "tarnix/bom/model/merge.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tarnix {
namespace {

/// A path without the instance number of its last occurrence.
std::string withoutInstance(const std::string& path) { return path.substr(0, path.rfind(':')); }

void mergeNames(BomRow& target, const BomRow& row) {
    if (withoutInstance(target.occurrence->fullPathName()) !=
        withoutInstance(row.occurrence->fullPathName())) {
        target.combined = true;
    }
}

/// Both descriptions are read from the design: an earlier merge may have changed either.
void mergeDescriptions(const BomRow& target, const BomRow& row) {
    const std::string description = target.component->description();
    if (row.component->description() != description &&
        description.find(kDifferent) == std::string::npos) {
        target.component->description(kDifferent + description);
    }
}

void mergeProperties(std::vector<PropertyEntry>& target,
                     const std::vector<PropertyEntry>& further) {
    const std::size_t common = std::min(target.size(), further.size());
    for (std::size_t j = 0; j < common; ++j) {
        if (target[j].value != further[j].value) {
            target[j].value = kDifferent;
        }
    }
    for (std::size_t j = common; j < target.size(); ++j) {
        if (!target[j].value.empty()) {
            target[j].value = kDifferent;
        }
    }
    // Entries are appended meanwhile, so the length to start from is the common one.
    for (std::size_t j = common; j < further.size(); ++j) {
        if (!further[j].value.empty()) {
            target.push_back({further[j].name, kDifferent});
        }
    }
}

}  // namespace

void mergeInto(BomRow& target, const BomRow& row) {
    ++target.quantity;
    mergeNames(target, row);
    mergeDescriptions(target, row);
    mergeProperties(target.properties, row.properties);
}

}  // namespace tarnix
