#include "tests/parts/drawn_list.h"
#include "tests/parts/random_design.h"

#include "parts/bom_structure.h"
#include "parts/places.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

/// What the order in which an assembly has its children decides: the order of the rows, with it
/// the item numbers, and which of several places a path names. A sort leaves the paths alone.
namespace {

using parts::PartsList;
using parts::PartsRow;
using parts::View;
using test_support::randomDesign;
using test_support::shuffled;

constexpr unsigned kDesigns = 1000;

/// Every component is an item of its own, and no two rows are equal in all columns to sort by.
parts::PartsRequest sorted(View view) {
    parts::PartsRequest request = test_support::request(
        view, "Item,Part Number,Part Name,Quantity,Quantity per parent,Mass,Material,Level,Size");
    request.merging.by = parts::MergeBy::Component;
    request.sort = parts::parseSort("Part Name,Mass,Quantity");
    return request;
}

/// Paths of the components' first places, as they are met from the root down, children before the
/// next sibling; nothing in what is not opened.
class FirstPaths {
public:
    explicit FirstPaths(const host::DesignData& design) : design_(design) { visit(0, ""); }

    std::map<std::size_t, std::string> of;

private:
    void visit(std::size_t component, const std::string& path) {
        for (const host::OccurrenceData& child : design_.components[component].children) {
            const host::ComponentData& found = design_.components[child.component];
            if (child.absent || parts::structureOf(found) == parts::BomStructure::Reference) {
                continue;
            }
            const std::string below = parts::pathBelow(path, design_, child);
            of.try_emplace(child.component, below);
            const parts::BomStructure structure = parts::structureOf(found);
            if (structure == parts::BomStructure::Produce ||
                structure == parts::BomStructure::Divided) {
                visit(child.component, below);
            }
        }
    }

    const host::DesignData& design_;
};

TEST(OrderOfChildren, ChangesNothingInASortedListButItsPaths) {
    for (unsigned seed = 0; seed < kDesigns && !testing::Test::HasFailure(); ++seed) {
        const host::DesignData design = randomDesign(seed);
        const host::DesignData other = shuffled(design, seed);
        for (const View view : {View::Parts, View::Indented, View::Top, View::All}) {
            EXPECT_EQ(test_support::rowsOf(parts::buildPartsList(design, sorted(view))),
                      test_support::rowsOf(parts::buildPartsList(other, sorted(view))))
                << "seed " << seed;
        }
    }
}

TEST(OrderOfChildren, DecidesWhichPlaceAPathNames) {
    for (unsigned seed = 0; seed < kDesigns && !testing::Test::HasFailure(); ++seed) {
        const host::DesignData design = shuffled(randomDesign(seed), seed);
        const FirstPaths first(design);
        for (const PartsRow& row : parts::buildPartsList(design, sorted(View::Parts)).rows) {
            if (row.kind == parts::RowKind::Part) {
                EXPECT_EQ(row.path, first.of.at(row.component)) << "seed " << seed;
            }
        }
    }
}

TEST(OrderOfChildren, DecidesInWhichOfEqualAssembliesThePathsAre) {
    host::DesignData design = test_support::drawn(R"(
        Left  number=W
          Left rib  number=R
        Right  number=W
          Right rib  number=R)");
    std::ranges::reverse(design.components[0].children);

    EXPECT_EQ(test_support::rowsOf(parts::buildPartsList(
                  design, test_support::request(View::Indented, "Part Number,Quantity,Path"))),
              "W | 2 | Right:1\nR | 2 | Right:1+Right rib:1");
}

TEST(OrderOfChildren, IsThatOfTheRowsUnlessTheyAreSorted) {
    const parts::PartsRequest plain = test_support::request(View::Parts, "Item,Part Number,Path");
    parts::PartsRequest byNumber = plain;
    byNumber.sort = parts::parseSort("Part Number");

    EXPECT_EQ(test_support::rowsOf("Cart\n  Wheel\n  Axle\nWheel", plain),
              "1 | Wheel | Cart:1+Wheel:1\n2 | Axle | Cart:1+Axle:1");
    EXPECT_EQ(test_support::rowsOf("Wheel\nCart\n  Axle\n  Wheel", plain),
              "1 | Wheel | Wheel:1\n2 | Axle | Cart:1+Axle:1");
    EXPECT_EQ(test_support::rowsOf("Wheel\nCart\n  Axle\n  Wheel", byNumber),
              "1 | Axle | Cart:1+Axle:1\n2 | Wheel | Wheel:1");
}

}  // namespace
