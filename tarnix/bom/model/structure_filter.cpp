#include "tarnix/bom/model/structure_filter.h"

#include "tarnix/bom/model/bom_row.h"

namespace tarnix {
namespace {

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

}  // namespace

bool StructureFilter::accept(const BomRow& row) {
    const bool shown = isShown(row, row.occurrence->fullPathName());
    previousLevel_ = row.level;
    previousPathName_ = row.pathName;
    return shown;
}

bool StructureFilter::isUnderDivided() const { return dividedPath_ != kNone; }

bool StructureFilter::isShown(const BomRow& row, const std::string& path) {
    if (isUnderDivided() && !contains(path, dividedPath_)) {
        dividedPath_ = kNone;
    }
    const std::string structure = firstSetProperty(row);
    if (isDroppedAsReference(path, structure == "Reference")) {
        return false;
    }
    if (structure == "Divided") {
        dividedLevel_ = row.level;
        dividedPath_ = path;
        return false;
    }
    if (isTooDeepInDivided(row, path) || isInsideShownAssembly(row, path) ||
        followsSubtreeEnd(row) || isFurtherOfItem(row, path)) {
        return false;
    }
    noteShown(row, path);
    return true;
}

bool StructureFilter::isDroppedAsReference(const std::string& path, bool isReference) {
    if (isReference) {
        if (referencePath_ == kNone || !contains(path, referencePath_)) {
            referencePath_ = path;
        }
        return true;
    }
    // Also while there is no reference: a path that holds the word "empty" is dropped.
    return contains(path, referencePath_);
}

/// Only the direct children of a divided assembly are handed up.
bool StructureFilter::isTooDeepInDivided(const BomRow& row, const std::string& path) const {
    // Unsigned on purpose: a row above the divided one counts as far below it.
    const auto depth = static_cast<unsigned>(row.level) - static_cast<unsigned>(dividedLevel_);
    return row.level > 1 && isUnderDivided() && depth > 1 && contains(path, dividedPath_);
}

bool StructureFilter::isInsideShownAssembly(const BomRow& row, const std::string& path) const {
    return lastAssemblyStem_ != kNone && row.level >= previousLevel_ &&
           contains(path, lastAssemblyStem_);
}

bool StructureFilter::followsSubtreeEnd(const BomRow& row) const {
    return previousPathName_ == kSubtreeEnd && row.level > lastShownLevel_ && lastShownLevel_ != 0;
}

bool StructureFilter::isFurtherOfItem(const BomRow& row, const std::string& path) {
    return !seen_.addIfNew(row.component->partNumber(), path);
}

void StructureFilter::noteShown(const BomRow& row, const std::string& path) {
    lastShownLevel_ = row.level;
    if (row.childCount > 0) {
        // Without the instance's number, so that it is found in the paths of all instances.
        lastAssemblyStem_ = path.substr(0, path.rfind(':'));
    }
}

}  // namespace tarnix
