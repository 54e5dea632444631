#pragma once

#include "parts/number_text.h"
#include "parts/parts_list.h"

#include "host/design/shape_data.h"

#include <cstddef>
#include <cstdint>
#include <map>
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
    /// By what a parent is matched by: how many of the item are in one of it.
    using Parents = std::map<std::string, std::int64_t>;

    std::string item;                  ///< what lines are matched by
    std::optional<RowKind> kind = {};  ///< of a design's line
    std::vector<Cell> cells = {};      ///< one for each column that is compared
    Parents parents = {};              ///< what it is used in
    std::int64_t quantity = 0;         ///< in the whole design, where the parents are known
    bool hasParents = false;           ///< whether those are known
    std::optional<ShapeMeasures> shape = {};
    std::optional<host::ShapeInvariants> invariants = {};  ///< where shapes were looked at
};

struct ComparedColumn {
    Field field = Field::Property;
    std::string caption;

    /// A list that was edited has numbers as they were shown: they are compared in the digits that
    /// a list is written with.
    bool isAsShown = false;
    int shownDigits = NumberFormat().significantDigits;
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

/// The request with what shapes are told apart by: columns Volume and Area after the others.
PartsRequest comparisonRequest(PartsRequest request);

/// Compares lines with the same columns. Of several lines of one item those belong together that
/// are of one kind, and then those that differ in the least columns.
ListComparison compareLines(const std::vector<ComparedLine>& before,
                            const std::vector<ComparedLine>& after,
                            const std::vector<ComparedColumn>& columns);

}  // namespace parts
