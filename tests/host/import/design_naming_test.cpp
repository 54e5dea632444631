#include "host/import/design_naming.h"

#include <gtest/gtest.h>

namespace {

using host::ComponentData;
using host::DesignData;

ComponentData component(const std::string& id, const std::string& name,
                        const std::vector<std::size_t>& children = {}) {
    ComponentData made;
    made.name = name;
    made.partNumber = id;
    for (const std::size_t child : children) {
        made.children.push_back({.component = child, .instance = 0});
    }
    return made;
}

DesignData named(std::vector<ComponentData> components) {
    DesignData design;
    design.components = std::move(components);
    host::assignNamesAndNumbers(design);
    return design;
}

/// A line for each component: part number, name, and its uses.
std::string outline(const DesignData& design) {
    std::string text;
    for (const ComponentData& one : design.components) {
        text += one.partNumber + " | " + one.name;
        for (const host::OccurrenceData& child : one.children) {
            text += " | " + design.components[child.component].name + ":" +
                    std::to_string(child.instance);
        }
        text += "\n";
    }
    return text;
}

TEST(DesignNaming, TheIdIsThePartNumber) {
    EXPECT_EQ(outline(named({component("P-1", "Plate")})), "P-1 | Plate\n");
}

TEST(DesignNaming, WithoutAnIdTheNameIsThePartNumber) {
    EXPECT_EQ(outline(named({component("", "Plate"), component("", "Plate")})),
              "Plate | Plate\n"
              "Plate (1) | Plate (1)\n");
}

TEST(DesignNaming, ARepeatedNameGetsANumber) {
    EXPECT_EQ(outline(named({component("1", "A"), component("2", "A"), component("3", "A")})),
              "1 | A\n2 | A (1)\n3 | A (2)\n");
}

TEST(DesignNaming, ANumberedNameThatIsTakenIsSkipped) {
    EXPECT_EQ(outline(named({component("1", "A (1)"), component("2", "A"), component("3", "A"),
                             component("4", "A (1)")})),
              "1 | A (1)\n2 | A\n3 | A (2)\n4 | A (1) (1)\n");
}

TEST(DesignNaming, TheSameIdAndNameDoNotMakeProductsOne) {
    EXPECT_EQ(outline(named({component("Document", "Document"), component("Document", "Document"),
                             component("Document", "Other")})),
              "Document | Document\n"
              "Document (1) | Document (1)\n"
              "Document | Other\n");
}

TEST(DesignNaming, EqualIdsOfDifferentNamesAreKept) {
    EXPECT_EQ(outline(named({component("M3", "Screw"), component("M3", "Šroub")})),
              "M3 | Screw\nM3 | Šroub\n");
}

TEST(DesignNaming, UsesAreCountedInTreeOrder) {
    EXPECT_EQ(outline(named({component("", "Root", {1, 2, 1}), component("", "Sub", {2, 2}),
                             component("", "Part")})),
              "Root | Root | Sub:1 | Part:3 | Sub:2\n"
              "Sub | Sub | Part:1 | Part:2\n"
              "Part | Part\n");
}

TEST(DesignNaming, AnExplicitPartNumberIsMarked) {
    const DesignData design = named({component("P-1", "Plate"), component("", "Rod")});

    EXPECT_TRUE(design.components[0].hasExplicitPartNumber);
    EXPECT_FALSE(design.components[1].hasExplicitPartNumber);
}

}  // namespace
