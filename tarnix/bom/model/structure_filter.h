#pragma once

#include "tarnix/bom/model/bom_row.h"
#include "tarnix/bom/model/merging.h"

#include <string>

namespace tarnix {

/// Decides which rows of the merged list belong to the bill of materials.
///
/// A reference assembly and all below it drop out; a divided one drops out and hands its direct
/// children up; any other assembly is one line with nothing below it; an item is listed once.
/// Paths are compared by plain substring search, and the word "empty" means no path: a
/// component of that name is dropped like one below a reference.
class StructureFilter {
public:
    /// Takes the next row of the list; true when it is shown. Throws a plain `std::exception` for a
    /// row without an occurrence.
    bool accept(const BomRow& row);

    /// Whether the row taken last is under a divided assembly.
    [[nodiscard]] bool isUnderDivided() const;

private:
    bool isShown(const BomRow& row, const std::string& path);
    bool isDroppedAsReference(const std::string& path, bool isReference);
    [[nodiscard]] bool isTooDeepInDivided(const BomRow& row, const std::string& path) const;
    [[nodiscard]] bool isInsideShownAssembly(const BomRow& row, const std::string& path) const;
    [[nodiscard]] bool followsSubtreeEnd(const BomRow& row) const;
    bool isFurtherOfItem(const BomRow& row, const std::string& path);
    void noteShown(const BomRow& row, const std::string& path);

    static constexpr const char* kNone = "empty";

    std::string referencePath_ = kNone;
    std::string dividedPath_ = kNone;
    std::string lastAssemblyStem_ = kNone;
    int dividedLevel_ = 1;
    int lastShownLevel_ = 0;
    int previousLevel_ = 0;  ///< of the row taken before, shown or not
    std::string previousPathName_;
    ItemIndex seen_;  ///< the rows shown
};

}  // namespace tarnix
