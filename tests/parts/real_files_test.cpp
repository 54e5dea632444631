#include "tests/support/real_files.h"
#include "tests/parts/drawn_list.h"
#include "tests/parts/plain_walk.h"

#include "parts/part_shapes.h"

#include "host/import/read_design.h"
#include "host/import/read_shapes.h"
#include "host/session/environment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

using parts::PartsList;
using parts::PartsRow;
using parts::RowKind;
using parts::View;
using test_support::realFiles;
using test_support::request;

namespace {

using Quantities = std::map<std::string, std::int64_t>;

/// What was read is kept in the cache folder of the environment, as the workbench keeps it: each
/// file is measured once for all tests of a run.
host::DesignData opened(const std::string& file) {
    const host::ReadingCache cache = {.folder = host::environment::userCacheFolder() /
                                                "tarnix-workbench" / "readings"};
    std::vector<host::ReadingWarning> warnings;
    return host::readDesign(realFiles() / file, {}, {}, warnings, cache);
}

PartsList listOf(const host::DesignData& design, View view) {
    return parts::buildPartsList(design, request(view, "Quantity,Mass"));
}

/// Part numbers in small letters, each with its total quantity.
Quantities quantitiesOf(const PartsList& list) {
    Quantities quantities;
    for (const PartsRow& row : list.rows) {
        std::string number = parts::cellText(row.cells[0], {});
        std::ranges::transform(number, number.begin(),
                               [](unsigned char each) { return std::tolower(each); });
        quantities[number] += row.quantity;
    }
    return quantities;
}

Quantities quantitiesOf(const std::string& file) {
    return quantitiesOf(parts::buildPartsList(opened(file), request(View::Parts, "Part Number")));
}

/// The same with everything of one shape merged.
Quantities quantitiesByShape(const std::string& file) {
    const host::DesignData design = opened(file);
    parts::PartsRequest byShape = request(View::Parts, "Part Number");
    byShape.merging.by = parts::MergeBy::Shape;
    const host::ShapeData shapes = host::readShapes(design, {.classes = true});
    return quantitiesOf(
        parts::buildPartsList(design, byShape, parts::partShapesOf(shapes, parts::Pictures::None)));
}

/// How often each component is an item that is not opened.
std::map<std::size_t, std::int64_t> countsOf(const PartsList& list) {
    std::map<std::size_t, std::int64_t> counts;
    for (const PartsRow& row : list.rows) {
        for (const parts::Member& member : row.members) {
            if (row.kind == RowKind::Part) {
                counts[member.component] += member.quantity;
            }
        }
    }
    return counts;
}

double massOf(const PartsList& list) {
    double mass = 0;
    for (const PartsRow& row : list.rows) {
        mass += static_cast<double>(row.quantity) * row.mass.value_or(0);
    }
    return mass;
}

class RealPartsLists : public testing::Test {
protected:
    void SetUp() override { test_support::needRealFiles(); }
};

class EachWriter : public RealPartsLists, public testing::WithParamInterface<const char*> {};
class EachRealFile : public RealPartsLists, public testing::WithParamInterface<const char*> {};

}  // namespace

TEST_F(RealPartsLists, CountTheBoltsOfOneModelByTheirNames) {
    const Quantities expected = {
        {"bolt", 6}, {"nut", 8}, {"l-bracket", 2}, {"plate", 1}, {"rod", 1}};

    EXPECT_EQ(quantitiesOf("as1-oc-214.stp"), expected);
    EXPECT_EQ(quantitiesOf("as1-oc-214-mat.stp"), expected);
    EXPECT_EQ(quantitiesOf("as1_pe_203.stp"), expected);
}

TEST_P(EachWriter, CountsTheSamePartsOfOneModel) {
    parts::PartsRequest bySize = request(View::Parts, "Part Number,Volume");
    bySize.sort = parts::parseSort("Volume");
    std::vector<std::int64_t> quantities;
    for (const PartsRow& row : parts::buildPartsList(opened(GetParam()), bySize).rows) {
        quantities.push_back(row.quantity);
    }

    // Whatever they are called: nuts, bolts, the rod, the brackets, the plate.
    EXPECT_EQ(quantities, (std::vector<std::int64_t>{8, 6, 1, 2, 1}));
}

INSTANTIATE_TEST_SUITE_P(As1, EachWriter,
                         testing::Values("as1/trj2_as1-ac-214.stp", "as1/trj2_as1-ec-214.stp",
                                         "as1/trj2_as1-id-203.stp", "as1/trj2_as1-md-214.stp",
                                         "as1/trj2_as1-pe-203.stp", "as1/trj2_as1-tc-214.stp",
                                         "as1/trj2_as1-ug-214.stp", "as1/trj3_as1-md-214.stp",
                                         "as1/trj3_as1-pe-203.stp", "as1/trj3_as1-tc-203.stp"));

TEST_F(RealPartsLists, PartsOfOneShapeAreOneItemWhateverTheyAreCalled) {
    const Quantities merged = quantitiesByShape("MadMax_Core_MGN12H_DB_AH_v11.step");

    // Seven of "Magnet" and one each of "Magnet (1)" to "Magnet (4)" and "Magnet (10)".
    EXPECT_EQ(merged.at("magnet"), 12);
    EXPECT_FALSE(merged.contains("magnet (1)"));
    // Two pins are longer than the four others.
    EXPECT_EQ(merged.at("pin"), 4);
    EXPECT_EQ(merged.at("pin (2)"), 2);
}

TEST_F(RealPartsLists, PartsWithoutNamesOfTheirOwnAreToldApartByTheirShapes) {
    const Quantities apart = quantitiesOf("PushDevice-Assembly.step");
    const Quantities merged = quantitiesByShape("PushDevice-Assembly.step");

    EXPECT_EQ(apart.size(), 67U);
    EXPECT_EQ(merged.size(), 24U);
    std::int64_t items = 0;
    for (const auto& [number, quantity] : merged) {
        items += quantity;
    }
    EXPECT_EQ(items, 67);
}

TEST_P(EachRealFile, ConservesCountsAndMasses) {
    const host::DesignData design = opened(GetParam());
    const PartsList list = listOf(design, View::Parts);
    const double expected = test_support::massesByWalk(design).all;
    const double tolerance = 1e-9 * expected;

    EXPECT_EQ(countsOf(list), test_support::countsByWalk(design).parts);
    EXPECT_EQ(countsOf(listOf(design, View::Indented)), countsOf(list));
    EXPECT_NEAR(massOf(list), expected, tolerance);
    for (const View view : {View::Parts, View::Indented, View::Top, View::All}) {
        EXPECT_NEAR(listOf(design, view).totals.massKg.value_or(0), expected, tolerance);
    }
}

INSTANTIATE_TEST_SUITE_P(
    RealFiles, EachRealFile,
    testing::Values("as1-oc-214.stp", "as1-oc-214-mat.stp", "as1_pe_203.stp", "tr8_ha1_tc.stp",
                    "tr8_ha1_ug.stp", "s1-c5-214/s1-c5-214.stp", "G2A EBB36 v2.step",
                    "PCB_v3.4.step", "PCB_v3.5.step", "PushDevice-Assembly.step",
                    "MadMax_Core_MGN12H_DB_AH_v11.step", "ProMicro.step", "bug31670_russian.stp",
                    "nist_ctc_02_asme1_ap242-1.stp", "malformed/bug33569.stp",
                    "as1/trj2_as1-ac-214.stp", "as1/trj2_as1-ec-214.stp", "as1/trj2_as1-id-203.stp",
                    "as1/trj2_as1-md-214.stp", "as1/trj2_as1-pe-203.stp", "as1/trj2_as1-tc-214.stp",
                    "as1/trj2_as1-ug-214.stp", "as1/trj3_as1-md-214.stp", "as1/trj3_as1-pe-203.stp",
                    "as1/trj3_as1-tc-203.stp"));
