#pragma once

#include "tests/workbench/workbench_fixture.h"

#include <string>

/// A design whose occurrences are distinguished by where they are.
namespace test_support {

inline constexpr const char* kPlaced = R"(
    Frame  at=1,0,0
    Bolt  at=2,0,0
    Drive  at=3,0,0
      Nut  at=4,0,0)";

/// The positions along X of the occurrences directly under the root, with a "g" after grounded
/// ones.
inline std::string places(const std::string& file) {
    std::string result;
    const host::DesignData data = loadDesign(file);
    for (const host::OccurrenceData& each : data.components.front().children) {
        result += std::to_string(static_cast<int>(each.transform.cells[3]));
        result += each.grounded ? "g " : " ";
    }
    return result;
}

}  // namespace test_support
