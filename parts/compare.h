#pragma once

#include "parts/parts_list.h"

#include "host/design/shape_data.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// Two lists compared line by line: what was added, removed, moved or changed between two states of
/// a design.
///
/// Lines belong together by what they are merged by, as a rule the part number. Numbers that differ
/// by no more than files of different systems round them are equal.
namespace parts {

/// What tells two shapes apart where there is no more than their measures.
struct ShapeMeasures {
    double volume = 0;  ///< cm3
    double area = 0;    ///< cm2
};

/// A line of either list.
struct ComparedLine {
    std::string item;                       ///< what lines are matched by
    std::vector<Cell> cells = {};           ///< one for each column that is compared
    std::vector<std::string> parents = {};  ///< what it is used in, in order
    bool hasParents = false;                ///< whether those are known
    std::optional<ShapeMeasures> shape = {};
    std::optional<host::ShapeInvariants> invariants = {};  ///< where shapes were looked at
};

struct ComparedColumn {
    Field field = Field::Property;
    std::string caption;

    /// A spreadsheet that was edited has numbers as they were shown: they are compared in as many
    /// digits as it has.
    bool isAsShown = false;
};

enum class ChangeKind { Added, Removed, Moved, Quantity, Value, Shape };

/// One word: "added", "removed", "moved", "quantity", "changed", "shape".
std::string changeName(ChangeKind kind);

struct Change {
    ChangeKind kind = ChangeKind::Value;
    std::string item;
    std::string column = {};  ///< what changed; empty for lines that were added or removed
    Cell before = {};         ///< of a line that was removed its quantity
    Cell after = {};          ///< of a line that was added its quantity

    bool operator==(const Change&) const = default;
};

struct ListComparison {
    std::string before;  ///< the file
    std::string after;
    std::vector<Change> changes = {};  ///< in natural order of their items
    std::size_t unchanged = 0;         ///< lines
};

/// The lines of a list that was made by a `comparisonRequest` of so many columns, with the shapes
/// of its design, if they are known.
std::vector<ComparedLine> linesOf(const PartsList& list, std::size_t columnCount,
                                  const host::ShapeData& shapes = {});

/// The request with what shapes are told apart by: columns Volume and Area behind the others.
PartsRequest comparisonRequest(PartsRequest request);

/// Compares lines with the same columns; lines of one item in their order.
ListComparison compareLines(const std::vector<ComparedLine>& before,
                            const std::vector<ComparedLine>& after,
                            const std::vector<ComparedColumn>& columns);

}  // namespace parts
