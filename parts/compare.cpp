#include "parts/compare.h"

#include "parts/formula_guard.h"
#include "parts/natural_order.h"
#include "parts/number_text.h"

#include "host/design/shape_invariants.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>
#include <string_view>

namespace parts {
namespace {

/// Writers of STEP files round coordinates: measures of one shape differ by less than this.
constexpr double kRounding = 1e-6;

constexpr std::array kChangeNames = {"added", "removed", "moved", "quantity", "changed", "shape"};

bool isClose(double left, double right) {
    return std::abs(left - right) <= kRounding * std::max(std::abs(left), std::abs(right));
}

/// The number that a text of a spreadsheet is.
std::optional<double> shownNumber(std::string text) {
    std::ranges::replace(text, ',', '.');
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [last, failure] = std::from_chars(text.data(), end, number);
    return failure == std::errc() && last == end ? std::optional(number) : std::nullopt;
}

/// Half a unit of the last digit that a list writes of a number. The digits that the spreadsheet
/// has left are no measure: it drops zeros, and a user may type fewer.
double halfOfLastDigit(const Number& number, const NumberFormat& format) {
    constexpr double kHalf = 0.5;
    constexpr double kTen = 10;
    const bool isExact =
        number.decimals == kWhole || (number.decimals == kSignificant && number.value == 0);
    return isExact ? 0 : (kHalf + kRounding) * std::pow(kTen, -decimalsOf(number, format));
}

bool isShownAs(const Number& number, const std::string& text, const NumberFormat& format) {
    const std::optional<double> shown = shownNumber(text);
    return shown && std::abs(number.value - *shown) <= halfOfLastDigit(number, format);
}

bool isSameText(const std::string& left, const std::string& right) {
    return left == right || guardedFormula(left) == right || left == guardedFormula(right);
}

/// A list may have been written with a decimal comma.
bool isShownAs(const Extents& extents, std::string text, const NumberFormat& format) {
    std::ranges::replace(text, ',', '.');
    return cellText(extents, format) == text;
}

bool isSame(const Cell& left, const Cell& right, const ComparedColumn& about) {
    const NumberFormat format{.significantDigits = about.shownDigits};
    const auto* const one = std::get_if<Number>(&left);
    const auto* const other = std::get_if<Number>(&right);
    if (one != nullptr && other != nullptr) {
        return isClose(one->value, other->value);
    }
    if (about.isAsShown && one != nullptr) {
        return isShownAs(*one, cellText(right, format), format);
    }
    if (about.isAsShown && other != nullptr) {
        return isShownAs(*other, cellText(left, format), format);
    }
    if (const auto* const extents = std::get_if<Extents>(&left); about.isAsShown && extents) {
        return isShownAs(*extents, cellText(right, format), format);
    }
    if (const auto* const extents = std::get_if<Extents>(&right); about.isAsShown && extents) {
        return isShownAs(*extents, cellText(left, format), format);
    }
    return isSameText(cellText(left, format), cellText(right, format));
}

ChangeKind kindOf(Field field) {
    switch (field) {
        case Field::Quantity:
        case Field::QuantityPerParent:
            return ChangeKind::Quantity;
        case Field::Level:
        case Field::Path:
        case Field::UsedIn:
            return ChangeKind::Moved;
        default:
            return ChangeKind::Value;
    }
}

/// Whether some went from one parent to another. More or fewer in the parents that a line had is
/// another quantity and no move, unless there are as many in all.
bool isMoved(const ComparedLine& before, const ComparedLine& after) {
    if (!std::ranges::equal(before.parents, after.parents, {},
                            &ComparedLine::Parents::value_type::first,
                            &ComparedLine::Parents::value_type::first)) {
        return true;
    }
    bool isMore = false;
    bool isLess = false;
    for (const auto& [parent, quantity] : before.parents) {
        isMore = isMore || after.parents.at(parent) > quantity;
        isLess = isLess || after.parents.at(parent) < quantity;
    }
    return (isMore && isLess) || (isMore != isLess && before.quantity == after.quantity);
}

/// As the column "Used in" has them.
std::string parentsText(const ComparedLine::Parents& parents) {
    std::string text;
    for (const auto& [parent, quantity] : parents) {
        text += (text.empty() ? "" : "; ") + parent + " (" + std::to_string(quantity) + ")";
    }
    return text;
}

class Comparer {
public:
    explicit Comparer(const std::vector<ComparedColumn>& columns) : columns_(columns) {}

    void compare(const ComparedLine& before, const ComparedLine& after) {
        const std::size_t count = changes.size();
        if (before.hasParents && after.hasParents && isMoved(before, after)) {
            changes.push_back({.kind = ChangeKind::Moved,
                               .item = after.item,
                               .column = "Used in",
                               .before = parentsText(before.parents),
                               .after = parentsText(after.parents)});
        }
        for (std::size_t column = 0; column < columns_.size(); ++column) {
            compareCell(before, after, column);
        }
        compareShapes(before, after);
        unchanged += changes.size() == count ? 1U : 0U;
    }

    void addLine(ChangeKind kind, const ComparedLine& line) {
        Change change{.kind = kind, .item = line.item};
        for (std::size_t column = 0; column < columns_.size(); ++column) {
            if (kindOf(columns_[column].field) == ChangeKind::Quantity) {
                (kind == ChangeKind::Added ? change.after : change.before) = line.cells[column];
            }
        }
        changes.push_back(std::move(change));
    }

    std::vector<Change> changes;
    std::size_t unchanged = 0;

private:
    void compareCell(const ComparedLine& before, const ComparedLine& after, std::size_t column) {
        const ComparedColumn& about = columns_[column];
        if (!isSame(before.cells[column], after.cells[column], about)) {
            changes.push_back({.kind = kindOf(about.field),
                               .item = after.item,
                               .column = about.caption,
                               .before = before.cells[column],
                               .after = after.cells[column]});
        }
    }

    /// Where volumes and areas are equal, other invariants may not be, as of a mirror image.
    void compareShapes(const ComparedLine& before, const ComparedLine& after) {
        if (before.shape && after.shape &&
            !(isClose(before.shape->volume, after.shape->volume) &&
              isClose(before.shape->area, after.shape->area))) {
            addShape(before, after);
        } else if (before.invariants && after.invariants &&
                   !host::canBeEqual(*before.invariants, *after.invariants)) {
            changes.push_back({.kind = ChangeKind::Shape, .item = after.item, .column = "Shape"});
        }
    }

    /// Of the two measures the one that tells them apart.
    void addShape(const ComparedLine& before, const ComparedLine& after) {
        const bool isVolume = !isClose(before.shape->volume, after.shape->volume);
        changes.push_back(
            {.kind = ChangeKind::Shape,
             .item = after.item,
             .column = isVolume ? "Volume [cm\xC2\xB3]" : "Area [cm\xC2\xB2]",
             .before = Number{.value = isVolume ? before.shape->volume : before.shape->area},
             .after = Number{.value = isVolume ? after.shape->volume : after.shape->area}});
    }

    const std::vector<ComparedColumn>& columns_;
};

struct Namesakes {
    std::vector<const ComparedLine*> before;
    std::vector<const ComparedLine*> after;
};

/// What a component is matched by. Classes of shapes have other numbers in each file.
const std::string& itemOf(const PartsList& list, std::size_t component) {
    return list.request.merging.by == MergeBy::Shape ? list.componentNumbers[component]
                                                     : list.componentKeys[component];
}

/// In the tree with all that a row is in, below the root component.
std::string itemOf(const PartsList& list, const PartsRow& row) {
    std::string item = itemOf(list, row.component);
    for (std::optional<std::size_t> above = row.parent; above; above = list.rows[*above].parent) {
        item = itemOf(list, list.rows[*above].component) + " / " + item;
    }
    return item + (row.kind == RowKind::OwnBodies ? " (bodies of its own)" : "");
}

/// A row's parents by what they are matched by; the root has another name in each file.
ComparedLine::Parents parentsOf(const PartsList& list, const PartsRow& row) {
    ComparedLine::Parents parents;
    for (const Use& use : row.usedIn) {
        parents[use.component == 0 ? "the top" : itemOf(list, use.component)] += use.quantity;
    }
    return parents;
}

std::optional<double> numberIn(const Cell& cell) {
    const Number* const number = std::get_if<Number>(&cell);
    return number == nullptr ? std::nullopt : std::optional(number->value);
}

/// How unlikely it is that two lines of one item are the same one.
std::size_t distance(const ComparedLine& before, const ComparedLine& after,
                     const std::vector<ComparedColumn>& columns) {
    const bool isOtherKind = before.kind && after.kind && *before.kind != *after.kind;
    Comparer comparer(columns);
    comparer.compare(before, after);
    // More than there are changes in a line: its columns, its parents, its shape.
    return comparer.changes.size() + (isOtherKind ? columns.size() + 3 : 0);
}

using Pairs = std::map<std::size_t, std::size_t>;  // of indices, before and after

/// Which lines of one item belong together, the nearest ones first.
Pairs pairsOf(const Namesakes& lines, const std::vector<ComparedColumn>& columns) {
    // Hundreds of lines of one item cannot be told apart: those are taken in their order.
    constexpr std::size_t kMost = 10'000;
    const std::size_t count = lines.before.size() * lines.after.size();
    std::vector<std::array<std::size_t, 3>> candidates;
    for (std::size_t before = 0; before < lines.before.size(); ++before) {
        for (std::size_t after = 0; after < lines.after.size() && count <= kMost; ++after) {
            candidates.push_back(
                {count == 1 ? 0 : distance(*lines.before[before], *lines.after[after], columns),
                 before, after});
        }
        if (count > kMost && before < lines.after.size()) {
            candidates.push_back({0, before, before});
        }
    }
    std::ranges::sort(candidates);
    Pairs pairs;
    std::vector<bool> isTaken(lines.after.size());
    for (const auto& [cost, before, after] : candidates) {
        if (!isTaken[after] && pairs.try_emplace(before, after).second) {
            isTaken[after] = true;
        }
    }
    return pairs;
}

void compareNamesakes(const Namesakes& lines, const std::vector<ComparedColumn>& columns,
                      Comparer& comparer) {
    const Pairs pairs = pairsOf(lines, columns);
    std::vector<bool> isPaired(lines.after.size());
    for (const auto& [before, after] : pairs) {
        comparer.compare(*lines.before[before], *lines.after[after]);
        isPaired[after] = true;
    }
    for (std::size_t before = 0; before < lines.before.size(); ++before) {
        if (!pairs.contains(before)) {
            comparer.addLine(ChangeKind::Removed, *lines.before[before]);
        }
    }
    for (std::size_t after = 0; after < lines.after.size(); ++after) {
        if (!isPaired[after]) {
            comparer.addLine(ChangeKind::Added, *lines.after[after]);
        }
    }
}

}  // namespace

std::string changeName(ChangeKind kind) { return kChangeNames.at(static_cast<std::size_t>(kind)); }

PartsRequest comparisonRequest(PartsRequest request) {
    request.columns.push_back({.field = Field::Volume, .unit = findUnit("cm3")});
    request.columns.push_back({.field = Field::Area, .unit = findUnit("cm2")});
    return request;
}

std::vector<ComparedLine> linesOf(const PartsList& list, std::size_t columnCount,
                                  const host::ShapeData& shapes) {
    std::vector<ComparedLine> lines;
    for (const PartsRow& row : list.rows) {
        ComparedLine line{.item = itemOf(list, row),
                          .kind = row.kind,
                          .parents = parentsOf(list, row),
                          .quantity = row.quantity,
                          .hasParents = list.request.view != View::Indented};
        line.cells.assign(row.cells.begin(),
                          row.cells.begin() + static_cast<std::ptrdiff_t>(columnCount));
        if (row.cells.size() > columnCount + 1 && row.kind != RowKind::Assembly) {
            const std::optional<double> volume = numberIn(row.cells[columnCount]);
            const std::optional<double> area = numberIn(row.cells[columnCount + 1]);
            if (volume && area) {
                line.shape = {.volume = *volume, .area = *area};
            }
        }
        const host::Shape* const shape = shapes.of(row.component);
        if (shape != nullptr && row.kind != RowKind::Assembly) {
            line.invariants = shape->invariants;
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

ListComparison compareLines(const std::vector<ComparedLine>& before,
                            const std::vector<ComparedLine>& after,
                            const std::vector<ComparedColumn>& columns) {
    std::map<std::string, Namesakes, NaturalLess> items;
    for (const ComparedLine& line : before) {
        items[line.item].before.push_back(&line);
    }
    for (const ComparedLine& line : after) {
        items[line.item].after.push_back(&line);
    }
    Comparer comparer(columns);
    for (const auto& [item, lines] : items) {
        compareNamesakes(lines, columns, comparer);
    }
    return {.before = {},
            .after = {},
            .changes = std::move(comparer.changes),
            .unchanged = comparer.unchanged};
}

}  // namespace parts
