#include "tarnix/bom/model/merging.h"

#include <algorithm>
#include <utility>

namespace tarnix {
namespace {

bool isUnderRoot(const std::string& path) { return path.find('+') == std::string::npos; }

std::string parentPath(const std::string& path) { return path.substr(0, path.rfind('+')); }

bool areSameItem(const std::string& path, const std::string& otherPath) {
    return parentPath(path) == parentPath(otherPath) ||
           (isUnderRoot(path) && isUnderRoot(otherPath));
}

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
            target.push_back({.name = further[j].name, .value = kDifferent});
        }
    }
}

}  // namespace

int findBomRow(const std::vector<BomRow>& rows,
               const adsk::core::Ptr<adsk::fusion::Occurrence>& occurrence) {
    const std::string partNumber = occurrence->component()->partNumber();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const BomRow& row = rows[index];
        if (row.component->partNumber() == partNumber &&
            areSameItem(row.occurrence->fullPathName(), occurrence->fullPathName())) {
            return static_cast<int>(index);
        }
    }
    return -1;
}

ItemIndex::Item ItemIndex::itemOf(const std::string& partNumber, const std::string& path) {
    return {.partNumber = partNumber, .parentPath = parentPath(path)};
}

void ItemIndex::reserve(std::size_t rowCount) {
    firstOfItem_.reserve(rowCount);
    firstUnderRoot_.reserve(rowCount);
}

std::optional<std::size_t> ItemIndex::add(const std::string& partNumber, const std::string& path) {
    const std::size_t added = rowCount_++;
    std::size_t first = firstOfItem_.try_emplace(itemOf(partNumber, path), added).first->second;
    if (isUnderRoot(path)) {
        // A row inside this occurrence can count as the same item and come first.
        first = std::min(first, firstUnderRoot_.try_emplace(partNumber, added).first->second);
    }
    return first < added ? std::optional(first) : std::nullopt;
}

bool ItemIndex::addIfNew(const std::string& partNumber, const std::string& path) {
    const bool underRoot = isUnderRoot(path);
    const auto [top, isNewTop] = underRoot ? firstUnderRoot_.try_emplace(partNumber, rowCount_)
                                           : std::pair(firstUnderRoot_.end(), true);
    if (!isNewTop) {
        return false;
    }
    if (!firstOfItem_.try_emplace(itemOf(partNumber, path), rowCount_).second) {
        if (underRoot) {
            firstUnderRoot_.erase(top);
        }
        return false;
    }
    ++rowCount_;
    return true;
}

void mergeInto(BomRow& target, const BomRow& row) {
    ++target.quantity;
    mergeNames(target, row);
    mergeDescriptions(target, row);
    mergeProperties(target.properties, row.properties);
}

}  // namespace tarnix
