#pragma once

#include "parts/part_shapes.h"
#include "parts/parts_request.h"

#include "host/design/design_data.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// The list one orders and builds from: the items of a design over all levels, with quantities that
/// add up.
///
/// `buildPartsList` makes it of a plain design, by a request; a writer (csv_writer.h and its
/// like) makes a file of it. The list is never written into the design.
///
/// What becomes of a component says its BOM structure (bom_structure.h): Reference is left out with
/// everything in it, Divided is no line and its children move up, Produce is opened where it has
/// children, Buy and AsPart are one line. The root component is always opened; the bodies that an
/// opened component has of its own are an item too, so that the masses add up.
namespace parts {

/// Decimals of a number by its significant digits: as many as the writer is asked for.
inline constexpr int kSignificant = -1;
/// A count: whole by what it is and not by how it is shown.
inline constexpr int kWhole = -2;

/// A number in the unit of its column.
struct Number {
    double value = 0;
    int decimals = kSignificant;

    bool operator==(const Number&) const = default;
};

/// The bytes of a PNG file.
struct Picture {
    std::shared_ptr<const std::string> png;
    int shape = 0;  ///< class of the shape: equal shapes have the same picture

    bool operator==(const Picture&) const = default;
};

/// The lengths of a box, the longest first.
struct Extents {
    std::array<double, 3> values = {};
    int decimals = kSignificant;

    bool operator==(const Extents&) const = default;
};

/// A value as a writer gets it; the first is an empty cell.
using Cell = std::variant<std::monostate, std::string, Number, Extents, Picture>;

enum class RowKind {
    Part,       ///< an item that is not opened
    Assembly,   ///< one that is opened
    OwnBodies,  ///< the bodies that an opened component has of its own
};

/// How many of one component are in a row.
struct Member {
    std::size_t component = 0;  ///< index into `DesignData::components`
    std::int64_t quantity = 0;  ///< in the whole design, multiplied as the request says

    bool operator==(const Member&) const = default;
};

/// A parent, and how many of the item it has.
struct Use {
    std::size_t component = 0;
    std::int64_t quantity = 0;  ///< in one of the parent

    bool operator==(const Use&) const = default;
};

/// One item, as often as the view shows it.
struct PartsRow {
    std::vector<Cell> cells = {};  ///< one for each column
    RowKind kind = RowKind::Part;
    std::string item = {};  ///< "3", in the tree "3.1.2"; a filter does not change it
    int level = 1;          ///< 1 below the root; of a flat row the highest place
    std::int64_t quantity = 0;
    std::int64_t perParent = 0;              ///< 0 in a flat row with different parents
    std::optional<std::size_t> parent = {};  ///< index of a row; in the indented view alone
    std::string path = {};                   ///< of the first occurrence, as in "Asm:1+Bolt:2"
    std::size_t component = 0;               ///< that the row is named after
    /// By component; in the tree the one that is at `path` comes first.
    std::vector<Member> members = {};
    std::vector<Use> usedIn = {};  ///< by component; not in the indented view
    /// kg, of one; nothing where it is not measured, or has no shape.
    std::optional<double> mass = {};
    std::optional<double> totalMass = {};  ///< kg
    std::optional<int> shape = {};         ///< class of its shape
    bool isAssumed = false;                ///< a material or a density in it is assumed
    bool isUnmeasured = false;             ///< a body in it has no measures: sums are too small
};

struct ListColumn {
    Column column;
    std::string caption;  ///< with the unit
    std::string key;      ///< unique in the list, for programs
    const Unit* unit = nullptr;
};

/// Of the rows that are shown, without counting anything twice.
struct Totals {
    std::int64_t quantity = 0;  ///< of items that are not opened
    std::optional<double> massKg = {};
    bool isAssumed = false;
    bool isUnmeasured = false;  ///< the mass is too small
};

/// Components that are one item though they differ.
struct Conflict {
    /// "part number", "name", "material", "mass", "shape", "contents", "kind"
    std::string what;
    std::string item;                     ///< what they are merged by, such as the part number
    std::vector<std::string> values;      ///< those that differ, in order
    std::vector<std::string> components;  ///< names, in order

    bool operator==(const Conflict&) const = default;
};

/// Items of one shape under different keys.
struct PossibleDuplicate {
    int shape = 0;
    std::vector<std::string> items;  ///< what they are merged by, in order

    bool operator==(const PossibleDuplicate&) const = default;
};

struct ListWarning {
    std::string code;  ///< one stable word for programs
    std::string text;
    std::string component;

    bool operator==(const ListWarning&) const = default;
};

/// Where the design comes from, as far as the caller says.
struct ListSource {
    std::string file = {};
    std::string hash = {};  ///< "sha256:" and the digits; empty where it was not computed
};

struct PartsList {
    std::string design;
    ListSource source = {};
    PartsRequest request = {};
    std::vector<ListColumn> columns = {};
    std::vector<PartsRow> rows = {};
    Totals totals = {};
    std::vector<Conflict> conflicts = {};
    std::vector<PossibleDuplicate> duplicates = {};
    std::vector<ListWarning> warnings = {};
    std::vector<std::string> componentNames = {};    ///< of every component of the design
    std::vector<std::string> componentNumbers = {};  ///< their part numbers, else their names
    std::vector<std::string> componentKeys = {};     ///< what they are merged by, of those in it
};

/// Makes the list that is asked for. Throws a `RequestError` for columns that the design has not,
/// and for merging by shape without shapes.
PartsList buildPartsList(const host::DesignData& design, const PartsRequest& request,
                         const PartShapes& shapes = {});

}  // namespace parts
