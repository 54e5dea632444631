#include "tests/parts/drawn_list.h"
#include "tests/parts/plain_walk.h"
#include "tests/parts/random_design.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

using parts::MergeBy;
using parts::PartsList;
using parts::PartsRow;
using parts::RowKind;
using parts::View;
using test_support::countsByWalk;
using test_support::massesByWalk;
using test_support::randomDesign;
using test_support::shuffled;

namespace {

constexpr unsigned kDesigns = 1000;

PartsList listOf(const host::DesignData& design, View view, MergeBy by = MergeBy::PartNumber,
                 const std::string& columns = "Part Number,Quantity,Mass") {
    parts::PartsRequest request = test_support::request(view, columns);
    request.merging.by = by;
    return parts::buildPartsList(design, request);
}

double massOf(const PartsList& list) {
    double mass = 0;
    for (const PartsRow& row : list.rows) {
        mass += static_cast<double>(row.quantity) * *row.mass;
    }
    return mass;
}

/// How many there are of each component, by the rows of these kinds.
std::map<std::size_t, std::int64_t> countsOf(const PartsList& list, RowKind kind) {
    std::map<std::size_t, std::int64_t> counts;
    for (const PartsRow& row : list.rows) {
        if (row.kind == kind) {
            for (const parts::Member& member : row.members) {
                counts[member.component] += member.quantity;
            }
        }
    }
    return counts;
}

/// Of each item that is not opened, by what it is merged by and by what kind of row it is.
struct RollUp {
    using Item = std::pair<std::string, RowKind>;

    std::map<Item, std::int64_t> quantities;
    std::map<Item, double> masses;
};

RollUp rollUpOf(const PartsList& list) {
    RollUp sum;
    for (const PartsRow& row : list.rows) {
        if (row.kind != RowKind::Assembly) {
            const RollUp::Item item(list.componentKeys[row.component], row.kind);
            sum.quantities[item] += row.quantity;
            sum.masses[item] += *row.totalMass;
        }
    }
    return sum;
}

/// The cells of all rows, whatever their order.
std::vector<std::string> sortedRows(const PartsList& list) {
    std::vector<std::string> rows;
    for (const PartsRow& row : list.rows) {
        std::string text;
        for (const parts::Cell& cell : row.cells) {
            text += parts::cellText(cell, {.significantDigits = 9}) + " | ";
        }
        rows.push_back(text);
    }
    std::ranges::sort(rows);
    return rows;
}

class RandomDesigns : public testing::Test {
protected:
    template <class Check>
    void forEach(Check check) {
        for (unsigned seed = 0; seed < kDesigns && !HasFailure(); ++seed) {
            SCOPED_TRACE("seed " + std::to_string(seed));
            check(randomDesign(seed), seed);
        }
    }
};

}  // namespace

TEST_F(RandomDesigns, TheMassesAddUpToThoseOfThePlainTree) {
    forEach([](const host::DesignData& design, unsigned /*seed*/) {
        const test_support::WalkedMasses walked = massesByWalk(design);
        const PartsList list = listOf(design, View::Parts);

        EXPECT_NEAR(massOf(list), walked.listed, 1e-9 * (1 + walked.listed));
    });
}

TEST_F(RandomDesigns, AllViewsWeighTheSame) {
    forEach([](const host::DesignData& design, unsigned /*seed*/) {
        const double walked = massesByWalk(design).listed;
        for (const View view : {View::Parts, View::Indented, View::Top, View::All}) {
            EXPECT_NEAR(*listOf(design, view).totals.massKg, walked, 1e-9 * (1 + walked));
        }
        EXPECT_NEAR(massOf(listOf(design, View::Top)), walked, 1e-9 * (1 + walked));
    });
}

TEST_F(RandomDesigns, AllViewsOverAllLevelsCountTheSame) {
    forEach([](const host::DesignData& design, unsigned /*seed*/) {
        const std::int64_t parts = listOf(design, View::Parts).totals.quantity;
        EXPECT_EQ(listOf(design, View::Indented).totals.quantity, parts);
        EXPECT_EQ(listOf(design, View::All).totals.quantity, parts);
    });
}

TEST_F(RandomDesigns, TheCountsAreThoseOfThePlainWalk) {
    forEach([](const host::DesignData& design, unsigned /*seed*/) {
        const test_support::WalkedCounts walked = countsByWalk(design);

        EXPECT_EQ(countsOf(listOf(design, View::Parts), RowKind::Part), walked.parts);
        EXPECT_EQ(countsOf(listOf(design, View::All), RowKind::Assembly), walked.assemblies);
    });
}

TEST_F(RandomDesigns, ThePartsAreTheRollUpOfTheTree) {
    forEach([](const host::DesignData& design, unsigned /*seed*/) {
        const RollUp leaves = rollUpOf(listOf(design, View::Indented));
        const RollUp parts = rollUpOf(listOf(design, View::Parts));
        EXPECT_EQ(leaves.quantities, parts.quantities);
        ASSERT_EQ(leaves.masses.size(), parts.masses.size());
        for (const auto& [item, mass] : parts.masses) {
            EXPECT_NEAR(leaves.masses.at(item), mass, 1e-9 * (1 + mass));
        }
    });
}

TEST_F(RandomDesigns, TheRowsOfPartsAndAssembliesHoldThoseOfParts) {
    forEach([](const host::DesignData& design, unsigned /*seed*/) {
        EXPECT_EQ(rollUpOf(listOf(design, View::All)).quantities,
                  rollUpOf(listOf(design, View::Parts)).quantities);
    });
}

TEST_F(RandomDesigns, QuantitiesPerParentMultiplyToTotals) {
    forEach([](const host::DesignData& design, unsigned /*seed*/) {
        const PartsList list = listOf(design, View::Indented);
        for (const PartsRow& row : list.rows) {
            const std::int64_t parents = row.parent ? list.rows[*row.parent].quantity : 1;
            EXPECT_EQ(row.quantity, parents * row.perParent) << row.item;
        }
    });
}

TEST_F(RandomDesigns, NothingButPathsDependsOnTheOrderOfChildrenAndComponents) {
    forEach([](const host::DesignData& design, unsigned seed) {
        const host::DesignData other = shuffled(design, seed);
        const auto listed = [](const host::DesignData& each, View view) {
            return listOf(each, view, MergeBy::PartNumber,
                          "Part Number,Part Name,Quantity,Quantity per parent,Mass,Total mass,"
                          "Volume,Density,Material,BOM Structure,Level,Used in,Bodies,Size");
        };
        for (const View view : {View::Parts, View::Indented, View::Top, View::All}) {
            EXPECT_EQ(sortedRows(listed(design, view)), sortedRows(listed(other, view)));
        }
        EXPECT_EQ(listOf(design, View::Parts).conflicts, listOf(other, View::Parts).conflicts);
    });
}

TEST_F(RandomDesigns, MergingByComponentAndByUniqueNumbersAgree) {
    forEach([](host::DesignData design, unsigned /*seed*/) {
        for (std::size_t index = 0; index < design.components.size(); ++index) {
            design.components[index].partNumber = "P-" + std::to_string(index);
        }
        for (const View view : {View::Parts, View::Indented, View::Top, View::All}) {
            EXPECT_EQ(sortedRows(listOf(design, view, MergeBy::PartNumber)),
                      sortedRows(listOf(design, view, MergeBy::Component)));
        }
    });
}

TEST_F(RandomDesigns, MergingChangesNoTotal) {
    forEach([](const host::DesignData& design, unsigned /*seed*/) {
        const PartsList apart = listOf(design, View::Parts, MergeBy::Component);
        const PartsList together = listOf(design, View::Parts, MergeBy::PartNumber);

        EXPECT_EQ(apart.totals.quantity, together.totals.quantity);
        EXPECT_NEAR(*apart.totals.massKg, *together.totals.massKg,
                    1e-9 * (1 + *apart.totals.massKg));
        EXPECT_GE(apart.rows.size(), together.rows.size());
    });
}
