#include "host/session/design_summary.h"

#include "host/design/outline.h"

#include <gtest/gtest.h>

using host::MaterialUse;

TEST(DesignSummary, CountsUsesOfAssembliesThatAreUsedTwice) {
    // Root, Frame twice, Leg below each, Bolt: Frame + Leg + Frame + Leg + Bolt are 5 occurrences.
    const host::DesignSummary summary =
        host::summarize(host::parseOutline("Frame\n"
                                           "  Leg  material=Steel:0.008\n"
                                           "Frame\n"
                                           "Bolt  material=Brass:0.0085\n"));

    EXPECT_EQ(summary.components, 4U);
    EXPECT_EQ(summary.occurrences, 5U);
    EXPECT_EQ(summary.levels, 2U);
}

TEST(DesignSummary, CountsTheComponentsOfEachMaterialThatHaveAShape) {
    const host::DesignSummary summary =
        host::summarize(host::parseOutline("A  material=Brass:0.0085 box=1x1x1\n"
                                           "B  material=Steel:0.008 box=1x1x1\n"
                                           "C  material=Brass:0.0085 box=1x1x1\n"
                                           "D  material=none box=1x1x1\n"
                                           "E  material=Steel:0.008\n"));

    EXPECT_EQ(summary.bodies, 4U);
    EXPECT_EQ(summary.materials,
              (std::vector<MaterialUse>{{"Brass", 0.0085, 2}, {"Steel", 0.008, 1}}));
}

TEST(DesignSummary, CountsTheComponentsWhoseMaterialIsAssumed) {
    host::DesignData design = host::parseOutline(
        "A  material=Steel:0.00785 box=1x1x1\n"
        "B  material=Steel:0.00785 box=1x1x1\n"
        "C  material=Steel:0.00785\n");
    design.components[2].material->nameAssumed = true;
    design.components[3].material->nameAssumed = true;

    const host::DesignSummary summary = host::summarize(design);

    EXPECT_EQ(summary.withoutMaterial, 1U);
    EXPECT_EQ(summary.materials,
              (std::vector<MaterialUse>{{"Steel", 0.00785, 1},
                                        {"Steel", 0.00785, 1, /*nameAssumed=*/true}}));
}

TEST(DesignSummary, ADesignWithoutOccurrencesHasNoLevels) {
    const host::DesignSummary summary = host::summarize(host::parseOutline(""));

    EXPECT_EQ(summary.components, 1U);
    EXPECT_EQ(summary.occurrences, 0U);
    EXPECT_EQ(summary.levels, 0U);
}
