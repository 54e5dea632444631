#include "tarnix/bom/tabs/structure_tab.h"

#include <gtest/gtest.h>

namespace tarnix {
namespace {

BomRow row(int level, std::size_t childCount, bool combined = false) {
    BomRow made;
    made.level = level;
    made.childCount = childCount;
    made.combined = combined;
    return made;
}

constexpr bool kUnderDivided = true;
constexpr bool kElsewhere = false;

TEST(StructureImage, ShowsPartsAndAssemblies) {
    EXPECT_EQ(structureImage(row(1, 0), kElsewhere), "././Resources/BOM/Part.png");
    EXPECT_EQ(structureImage(row(1, 3), kElsewhere), "././Resources/BOM/Asm.png");
    EXPECT_EQ(structureImage(row(2, 3), kElsewhere), "././Resources/BOM/Asm.png");
}

TEST(StructureImage, MarksWhatADividedAssemblyHandedUp) {
    EXPECT_EQ(structureImage(row(2, 0), kUnderDivided), "././Resources/BOM/PartUp.png");
    EXPECT_EQ(structureImage(row(2, 3), kUnderDivided), "././Resources/BOM/AsmUp.png");
    EXPECT_EQ(structureImage(row(1, 0), kUnderDivided), "././Resources/BOM/PartUp.png");
    EXPECT_EQ(structureImage(row(1, 3), kUnderDivided), "././Resources/BOM/Asm.png");
}

TEST(StructureImage, ShowsCombinedItemsByTheirLevelAlone) {
    EXPECT_EQ(structureImage(row(1, 0, true), kUnderDivided), "././Resources/BOM/Combine.png");
    EXPECT_EQ(structureImage(row(2, 3, true), kElsewhere), "././Resources/BOM/CombineUp.png");
}

}  // namespace
}  // namespace tarnix
