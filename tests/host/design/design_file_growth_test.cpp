#include "host/design/design_file.h"
#include "host/design/geometry.h"
#include "tests/support/allocations.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace host {
namespace {

/// A root with so many different parts, all with names and attributes too long to be kept in place.
DesignData flatDesign(std::size_t parts) {
    DesignData design;
    design.name = "Flat";
    design.components.resize(1 + parts);
    design.components[0].name = "Flat";
    for (std::size_t index = 1; index <= parts; ++index) {
        ComponentData& part = design.components[index];
        part.name = "A part with a rather long name, number " + std::to_string(index);
        part.partNumber = part.name;
        part.attributes = {{.group = "A group with a rather long name", .name = "a", .value = "1"}};
        part.geometry = boxGeometry(1, 2, 3);
        design.components[0].children.push_back({.component = index});
    }
    return design;
}

std::size_t allocationsToLoad(std::size_t parts) {
    const test_support::TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "flat.design.json";
    saveDesignFile(file, flatDesign(parts));
    const std::size_t before = test_support::allocations();
    const DesignData loaded = loadDesignFile(file);
    EXPECT_EQ(loaded.components.size(), 1 + parts);
    return test_support::allocations() - before;
}

// Time depends on the machine; what a design costs more than once would show in the count as well.
TEST(DesignFileGrowth, TenTimesThePartsTakeAtMostTenTimesTheAllocations) {
    const std::size_t few = allocationsToLoad(300);
    if (few < 300) {
        GTEST_SKIP() << "allocations of the host's library are not this program's";
    }
    EXPECT_LE(allocationsToLoad(3000), 10 * few);
    // Name, number, group and geometry of a part, and the list of its attributes.
    EXPECT_LE(few, 300 * 6 + 200);
}

}  // namespace
}  // namespace host
