#include "tests/tarnix/bom/model/reference_bom.h"
#include "tarnix/bom/model/merging.h"
#include "tarnix/bom/model/structure_filter.h"
#include "tarnix/bom/model/walk.h"
#include "tests/tarnix/bom/model/open_design.h"
#include "tests/tarnix/bom/model/random_design.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace tarnix {
namespace {

/// Everything of the rows but their handles.
std::string describe(const std::vector<BomRow>& rows) {
    std::ostringstream text;
    for (const auto& row : rows) {
        text << row.occurrence->fullPathName() << " | " << row.relativePosition << " | "
             << row.childCount << " | " << row.pathName << " | " << row.quantity << " | "
             << row.level << " | " << row.combined;
        for (const auto& entry : row.properties) {
            text << " | " << entry.name << "=" << entry.value;
        }
        text << "\n";
    }
    return text.str();
}

std::vector<reference::ShownRow> shownRows(const std::vector<BomRow>& rows) {
    std::vector<reference::ShownRow> shown;
    StructureFilter filter;
    int r = 0;
    for (const auto& row : rows) {
        ++r;
        if (filter.accept(row)) {
            shown.push_back({.r = r, .underDivided = filter.isUnderDivided()});
        }
    }
    return shown;
}

std::string describe(const std::vector<reference::ShownRow>& rows) {
    std::string text;
    for (const auto& row : rows) {
        text += std::to_string(row.r) + (row.underDivided ? "^ " : " ");
    }
    return text;
}

/// What the merging walk and the filter make of one design.
struct Outcome {
    std::string rows;
    std::string userPropertyNames;
    std::string descriptions;
    std::string shown;

    bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    return out << "\nrows:\n"
               << outcome.rows << "names: " << outcome.userPropertyNames << "\ndescriptions:\n"
               << outcome.descriptions << "shown: " << outcome.shown;
}

std::string joined(const std::vector<std::string>& names) {
    std::string text;
    for (const auto& name : names) {
        text += name + ";";
    }
    return text;
}

Outcome outcomeOf(const host::DesignData& data) {
    const OpenDesign design(data);
    BomModel model;
    const auto rows = walkOccurrencesMerged(model, design.occurrences(), 1);
    return {.rows = describe(rows),
            .userPropertyNames = joined(model.userPropertyNames),
            .descriptions = design.descriptions(),
            .shown = describe(shownRows(rows))};
}

Outcome referenceOutcomeOf(const host::DesignData& data) {
    const OpenDesign design(data);
    BomModel model;
    const auto rows = reference::walkOccurrencesMerged(model, design.occurrences(), 1);
    return {.rows = describe(rows),
            .userPropertyNames = joined(model.userPropertyNames),
            .descriptions = design.descriptions(),
            .shown = describe(reference::shownRows(rows))};
}

TEST(RandomDesigns, MergeAndAreFilteredLikeTheReference) {
    constexpr unsigned kDesigns = 1200;
    for (unsigned seed = 1; seed <= kDesigns; ++seed) {
        std::mt19937 random(seed);
        const host::DesignData data = randomDesign(random);
        ASSERT_EQ(outcomeOf(data), referenceOutcomeOf(data)) << "seed " << seed;
    }
}

/// The generator has to produce what the comparison is there for.
TEST(RandomDesigns, HoldTheCasesThatMatter) {
    unsigned merged = 0;
    unsigned combined = 0;
    unsigned marked = 0;
    unsigned handedUp = 0;
    unsigned childIsItsTopAssembly = 0;
    unsigned largest = 0;
    for (unsigned seed = 1; seed <= 500; ++seed) {
        std::mt19937 random(seed);
        const OpenDesign design(randomDesign(random));
        BomModel model;
        const auto rows = walkOccurrencesMerged(model, design.occurrences(), 1);
        const auto shown = shownRows(rows);
        merged += std::any_of(rows.begin(), rows.end(), [](auto& row) { return row.quantity > 1; });
        combined += std::any_of(rows.begin(), rows.end(), [](auto& row) { return row.combined; });
        marked += design.descriptions().find(": ***different***l") != std::string::npos;
        handedUp +=
            std::any_of(shown.begin(), shown.end(), [](auto& row) { return row.underDivided; });
        childIsItsTopAssembly += std::any_of(rows.begin(), rows.end(), [&rows](auto& row) {
            const int found = findBomRow(rows, row.occurrence);
            return row.level == 2 && rows[static_cast<std::size_t>(found)].level == 1;
        });
        largest = std::max(largest, static_cast<unsigned>(rows.size()));
    }
    EXPECT_GT(merged, 250U);
    EXPECT_GT(combined, 100U);
    EXPECT_GT(marked, 10U);
    EXPECT_GT(handedUp, 25U);
    EXPECT_GT(childIsItsTopAssembly, 25U);
    EXPECT_GT(largest, 50U);
}

}  // namespace
}  // namespace tarnix
