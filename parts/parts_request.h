#pragma once

#include "parts/columns.h"
#include "parts/request_error.h"
#include "parts/units.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What a parts list is to show. The command line and a profile both fill it.
namespace parts {

enum class View {
    Parts,     ///< every item that is not opened, over all levels, merged
    Indented,  ///< the tree by item, each identical assembly once per place
    Top,       ///< the first level
    All,       ///< parts and assemblies, flat
};

enum class MergeBy { PartNumber, Name, Component, Shape, Columns };

/// When two components are one item.
struct Merging {
    MergeBy by = MergeBy::PartNumber;
    std::vector<Column> columns = {};  ///< of `Columns`: those whose values have to be equal
};

enum class Comparison { Equal, NotEqual, Contains, Less, Greater, LessOrEqual, GreaterOrEqual };

/// A row is shown where its value compares as said. Where `number` is set both are compared as
/// numbers in the host's units, else as texts.
struct Filter {
    Column column;
    Comparison comparison = Comparison::Equal;
    std::string text = {};  ///< as it was written
    std::optional<double> number = {};
};

struct SortKey {
    Column column;
    bool isDescending = false;
};

struct PartsRequest {
    View view = View::Parts;
    Merging merging = {};
    std::vector<Column> columns = {};  ///< empty: those of `defaultColumns`
    std::vector<Filter> filters = {};  ///< all of them have to hold
    std::vector<SortKey> sort = {};    ///< the first decides first; empty: in the design's order
    std::int64_t multiply = 1;         ///< so many of the whole design
    Units units = {};
};

/// How many of the design can be asked for.
inline constexpr std::int64_t kMostMultiply = 1'000'000;

/// What a view shows where no columns are chosen.
std::vector<Column> defaultColumns(View view);

/// The columns that are chosen, else those of the view.
std::vector<Column> columnsOf(const PartsRequest& request);

/// "parts", "indented", "top" or "all". Throws a `RequestError`, as all of these do.
View parseView(std::string_view text);
std::string viewName(View view);

/// "part-number", "name", "component", "shape", or columns with commas between that a component
/// has wherever it is: no quantities, no places.
Merging parseMerging(std::string_view text);
std::string mergingText(const Merging& merging);

/// "COLUMN OPERATOR VALUE", as in "Material=Steel", "Mass>5 g", "Part Name~bolt". The operators
/// are = != ~ < > <= >=; a number without a unit is in `units`.
Filter parseFilter(std::string_view text, const Units& units);

/// Columns with commas between, each with ":desc" or ":asc" after it or nothing.
std::vector<SortKey> parseSort(std::string_view text);

/// A filter as it was asked for, as in "Mass>5 g".
std::string filterText(const Filter& filter);

/// Whether the list shows, or filters, sorts or merges by, what rests on materials: masses,
/// densities or the materials themselves.
bool restsOnMaterials(const PartsRequest& request);

/// Whether the list needs the bodies of the design measured, or no more than its tree.
bool needsBodies(const PartsRequest& request);

/// Whether the list needs the classes or the pictures of shapes.
bool needsShapes(const PartsRequest& request);

}  // namespace parts
