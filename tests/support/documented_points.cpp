#include "tests/support/documented_points.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace test_support {
namespace {

using host::DocumentedPoints;

struct PointName {
    std::string_view name;
    bool DocumentedPoints::*point;
};

constexpr PointName kPointNames[] = {
    {"uniqueInputIds", &DocumentedPoints::uniqueInputIds},
    {"emptyNumberIsName", &DocumentedPoints::emptyNumberIsName},
    {"namelessRowItems", &DocumentedPoints::namelessRowItems},
    {"palettesEndWithWorkspace", &DocumentedPoints::palettesEndWithWorkspace},
    {"validatesAnyTime", &DocumentedPoints::validatesAnyTime},
    {"lateSelectedRow", &DocumentedPoints::lateSelectedRow},
    {"unnamedImports", &DocumentedPoints::unnamedImports},
    {"columnsInUse", &DocumentedPoints::columnsInUse},
    {"uniqueEmptyIds", &DocumentedPoints::uniqueEmptyIds},
};

void turnOver(DocumentedPoints& points, const std::string& name) {
    const auto* const found = std::ranges::find(kPointNames, name, &PointName::name);
    if (found == std::end(kPointNames)) {
        throw std::invalid_argument("TARNIX_TEST_HOST_POINTS: no point is called " + name);
    }
    points.*found->point = true;
}

}  // namespace

DocumentedPoints documentedPointsOfTests() {
    const char* const value = std::getenv("TARNIX_TEST_HOST_POINTS");
    const std::string names = value == nullptr ? "" : value;
    if (names == "all") {
        return host::kAsDocumented;
    }
    DocumentedPoints points;
    std::istringstream stream(names);
    for (std::string name; std::getline(stream, name, ',');) {
        turnOver(points, name);
    }
    return points;
}

}  // namespace test_support
