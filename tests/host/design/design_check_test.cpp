#include "host/design/design_check.h"
#include "host/design/naming.h"
#include "host/design/outline.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>

namespace host {
namespace {

/// What is wrong with a small design after something was done to it.
std::string complaint(const std::function<void(DesignData&)>& spoil) {
    DesignData data = parseOutline(R"(
        Frame
          Bolt
        Bolt)");
    spoil(data);
    try {
        checkDesign(data);
    } catch (const DesignError& error) {
        return error.what();
    }
    return "none";
}

TEST(CheckDesign, ValidDesignPasses) {
    EXPECT_EQ(complaint([](DesignData&) {}), "none");
}

TEST(CheckDesign, NamesPlaceAndWhatWouldBeRight) {
    EXPECT_EQ(complaint([](DesignData& data) { data.components.clear(); }),
              "components: a design needs at least its root component");
    EXPECT_EQ(complaint([](DesignData& data) { data.components[1].children[0].component = 9; }),
              "components[1].children[0]: component 9 is not there; the last one is 2");
    EXPECT_EQ(complaint([](DesignData& data) { data.components[1].children[0].component = 0; }),
              "components[1].children[0]: component 0 is the root component and cannot be placed");
    EXPECT_EQ(complaint([](DesignData& data) { data.components[1].children[0].component = 1; }),
              "components[1]: \"Frame\" contains itself; an assembly must be free of itself");
    EXPECT_EQ(complaint([](DesignData& data) { data.components[0].children[1].instance = 1; }),
              "components[2]: two uses have the instance 1; each use needs a number of its own");
    EXPECT_EQ(complaint([](DesignData& data) { data.components[0].children[1].instance = 0; }),
              "components[0].children[1]: the instance must be 1 or more");
    EXPECT_EQ(complaint([](DesignData& data) { data.components[2].name = ""; }),
              "components[2]: a component needs a name");
    EXPECT_EQ(complaint([](DesignData& data) { data.components[2].material->density = -1; }),
              "components[2].material: the density must be a number of 0 or more");
    EXPECT_EQ(complaint([](DesignData& data) {
                  data.components[2].attributes = {{.group = "G", .name = "a", .value = "1"},
                                                   {.group = "G", .name = "b", .value = ""},
                                                   {.group = "G", .name = "a", .value = ""}};
              }),
              "components[2].attributes: \"a\" of the group \"G\" may appear only once");
    EXPECT_EQ(complaint([](DesignData& data) {
                  data.attributes = {{.group = "", .name = "a", .value = "1"}};
              }),
              "the design.attributes: an attribute needs a group and a name");
}

TEST(CheckDesign, TransformMustBeAPlacement) {
    EXPECT_EQ(complaint([](DesignData& data) {
                  data.components[1].children[0].transform.cells[3] = std::nan("");
              }),
              "components[1].children[0].transform: sixteen finite numbers are needed");
    EXPECT_EQ(
        complaint([](DesignData& data) { data.components[1].children[0].transform.cells[15] = 2; }),
        "components[1].children[0].transform: the last four numbers must be 0, 0, 0, 1");
}

TEST(CheckDesign, AbsentPlaceNeedsNoComponent) {
    EXPECT_EQ(complaint([](DesignData& data) {
                  data.components[0].children[1].absent = true;
                  data.components[0].children[1].component = 99;
              }),
              "none");
}

TEST(CheckDesign, CycleOutOfTheRootsReachIsRefused) {
    EXPECT_EQ(complaint([](DesignData& data) {
                  data.components.push_back(data.components[2]);
                  data.components[3].children = {{.component = 3}};
              }),
              "components[3]: \"Bolt\" contains itself; an assembly must be free of itself");
}

/// Assemblies in each other, each holding the next one `width` times.
DesignData tower(std::size_t levels, std::size_t width) {
    DesignData data;
    for (std::size_t level = 0; level <= levels; ++level) {
        data.components.emplace_back().name = "A" + std::to_string(level);
        if (level > 0) {
            data.components[level - 1].children.resize(width);
            for (OccurrenceData& child : data.components[level - 1].children) {
                child.component = level;
            }
        }
    }
    numberInstances(data);
    return data;
}

TEST(CheckDesign, OccurrencesAreCountedInContext) {
    EXPECT_EQ(countOccurrences(tower(3, 10)), 1110u);
    EXPECT_EQ(countLevels(tower(3, 10)), 3u);
    EXPECT_EQ(countOccurrences(tower(0, 0)), 0u);
    EXPECT_EQ(countLevels(tower(0, 0)), 0u);
}

TEST(CheckDesign, MoreThanAMillionOccurrencesAreRefused) {
    checkDesign(tower(1, 1'000'000));
    EXPECT_THROW(checkDesign(tower(1, 1'000'001)), DesignError);
}

TEST(CheckDesign, ExpansionThatOverflowsIsRefused) {
    EXPECT_THROW(checkDesign(tower(400, 10)), DesignError);
}

TEST(CheckDesign, DepthIsLimitedWithoutRecursion) {
    checkDesign(tower(500, 1));
    EXPECT_THROW(checkDesign(tower(501, 1)), DesignError);
    EXPECT_THROW(checkDesign(tower(200'000, 1)), DesignError);
}

}  // namespace
}  // namespace host
