#include "tarnix/bom/model/identity.h"

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

}  // namespace tarnix
