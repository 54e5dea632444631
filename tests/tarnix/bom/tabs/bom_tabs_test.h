#pragma once

#include "tests/support/addin_test.h"
#include "tests/support/text.h"

#include <Core/CoreAll.h>

#include <string>

namespace tarnix {

inline constexpr const char* kModelTable = test_support::kModelTable;
inline constexpr const char* kStructureTable = test_support::kStructureTable;
inline constexpr const char* kConfigurationTable = test_support::kConfigurationTable;

using test_support::text;

/// A test that looks at the inputs of the BOM dialog one by one.
class BomTabsTest : public test_support::AddinTest {
protected:
    /// The inputs of a table's row, a line each: column, kind, id, caption in quotes, and what it
    /// shows. Two spaces and "hidden" follow where it is not visible.
    [[nodiscard]] std::string row(const char* table, int index) const;

    /// The ids of a table's row, with a space before each.
    [[nodiscard]] std::string ids(const char* table, int index) const;

    /// What one column shows, from row 1 to the last, a line each.
    [[nodiscard]] std::string column(const char* table, int index) const;

    /// One input as `row` shows it, without the column.
    [[nodiscard]] std::string input(const char* id) const;

    /// The number of rows of a table, its first included.
    [[nodiscard]] int rowCount(const char* table) const;

    [[nodiscard]] std::string ratio(const char* table) const;

    /// The id and the caption of each tab of the dialog, a line each.
    [[nodiscard]] std::string tabs() const;
};

/// Components whose part number, name or description is "1", as a chosen structure's property is,
/// and one that is none of them.
inline constexpr const char* kValuesOfOne = R"(
    Bolt  number=1
    1  number=P-1
    Nut  description=1
    Cap  description=10)";

/// What their rows offer as BOM structure: only the last one has its own chosen.
inline constexpr const char* kStructuresBesideOne =
    "Produce/Buy/AsPart/Divided/Reference\n"
    "Produce/Buy/AsPart/Divided/Reference\n"
    "Produce/Buy/AsPart/Divided/Reference\n"
    "*Produce/Buy/AsPart/Divided/Reference";

/// An input as a text: kind, id, caption in quotes, and what it shows.
std::string describe(const adsk::core::Ptr<adsk::core::CommandInput>& input);

}  // namespace tarnix
