#include "tests/support/real_files.h"
#include "tests/parts/drawn_list.h"
#include "tests/parts/plain_walk.h"

#include "host/import/read_design.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

using parts::PartsList;
using parts::PartsRow;
using parts::View;
using test_support::realFiles;
using test_support::request;

namespace {

host::DesignData opened(const std::string& file) {
    std::vector<host::ReadingWarning> warnings;
    return host::readDesign(realFiles() / file, {}, {}, warnings);
}

/// Part numbers, each with its total quantity, as small letters.
std::map<std::string, std::int64_t> quantitiesOf(const std::string& file) {
    std::map<std::string, std::int64_t> quantities;
    const PartsList list = parts::buildPartsList(opened(file), request(View::Parts, "Part Number"));
    for (const PartsRow& row : list.rows) {
        std::string number = parts::cellText(row.cells[0], {});
        for (char& each : number) {
            each = each >= 'A' && each <= 'Z' ? static_cast<char>(each - 'A' + 'a') : each;
        }
        quantities[number] = row.quantity;
    }
    return quantities;
}

class RealPartsLists : public testing::Test {
protected:
    void SetUp() override { test_support::needRealFiles(); }
};

class EachWriter : public RealPartsLists, public testing::WithParamInterface<const char*> {};
class EachRealFile : public RealPartsLists, public testing::WithParamInterface<const char*> {};

}  // namespace

TEST_F(RealPartsLists, CountTheBoltsOfOneModelFromEveryWriter) {
    const std::map<std::string, std::int64_t> expected = {
        {"bolt", 6}, {"nut", 8}, {"l-bracket", 2}, {"plate", 1}, {"rod", 1}};

    EXPECT_EQ(quantitiesOf("as1-oc-214.stp"), expected);
    EXPECT_EQ(quantitiesOf("as1-oc-214-mat.stp"), expected);
    EXPECT_EQ(quantitiesOf("as1_pe_203.stp"), expected);
}

TEST_P(EachWriter, CountsTheSamePartsOfOneModel) {
    std::vector<std::int64_t> quantities;
    for (const auto& [number, quantity] : quantitiesOf(GetParam())) {
        quantities.push_back(quantity);
    }
    std::ranges::sort(quantities);

    // A plate, a rod, two brackets, six bolts and eight nuts, whatever they are called.
    EXPECT_EQ(quantities, (std::vector<std::int64_t>{1, 1, 2, 6, 8}));
}

INSTANTIATE_TEST_SUITE_P(As1, EachWriter,
                         testing::Values("as1/trj2_as1-ac-214.stp", "as1/trj2_as1-ec-214.stp",
                                         "as1/trj2_as1-id-203.stp", "as1/trj2_as1-md-214.stp",
                                         "as1/trj2_as1-pe-203.stp", "as1/trj2_as1-tc-214.stp",
                                         "as1/trj2_as1-ug-214.stp", "as1/trj3_as1-md-214.stp",
                                         "as1/trj3_as1-pe-203.stp", "as1/trj3_as1-tc-203.stp"));

TEST_P(EachRealFile, ConservesCountsAndMasses) {
    const host::DesignData design = opened(GetParam());
    const PartsList list = parts::buildPartsList(design, request(View::Parts, "Quantity,Mass"));
    std::map<std::size_t, std::int64_t> counts;
    double mass = 0;
    for (const PartsRow& row : list.rows) {
        mass += row.totalMass.value_or(0);
        for (const parts::Member& member : row.members) {
            if (row.kind == parts::RowKind::Part) {
                counts[member.component] += member.quantity;
            }
        }
    }

    EXPECT_EQ(counts, test_support::countsByWalk(design).parts);
    const double expected = test_support::massesByWalk(design).all;
    EXPECT_NEAR(mass, expected, 1e-9 * expected);
    EXPECT_NEAR(*list.totals.massKg, expected, 1e-9 * expected);
}

INSTANTIATE_TEST_SUITE_P(RealFiles, EachRealFile,
                         testing::Values("as1-oc-214.stp", "as1_pe_203.stp",
                                         "s1-c5-214/s1-c5-214.stp",
                                         "MadMax_Core_MGN12H_DB_AH_v11.step", "ProMicro.step",
                                         "G2A EBB36 v2.step", "PushDevice-Assembly.step"));
