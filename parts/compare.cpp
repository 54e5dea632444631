#include "parts/compare.h"

#include "parts/ascii.h"
#include "parts/formula_guard.h"
#include "parts/natural_order.h"
#include "parts/number_text.h"

#include "host/design/shape_invariants.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>
#include <set>
#include <string_view>

namespace parts {
namespace {

/// Writers of STEP files round coordinates: measures of one shape differ by less than this.
constexpr double kRounding = 1e-6;

constexpr std::array kChangeNames = {"added", "removed", "moved", "quantity", "changed", "shape"};

bool isClose(double left, double right) {
    return std::abs(left - right) <= kRounding * std::max(std::abs(left), std::abs(right));
}

/// The number that a text of a spreadsheet is, and how many decimals it has.
struct ShownNumber {
    double value = 0;
    int decimals = 0;
};

std::optional<ShownNumber> shownNumber(std::string text) {
    std::ranges::replace(text, ',', '.');
    ShownNumber number;
    const char* const end = text.data() + text.size();
    const auto [last, failure] = std::from_chars(text.data(), end, number.value);
    if (failure != std::errc() || last != end) {
        return std::nullopt;
    }
    const std::size_t point = text.find('.');
    number.decimals = point == std::string::npos ? 0 : static_cast<int>(text.size() - point - 1);
    return number;
}

/// Whether a number is what a spreadsheet shows, in its digits.
bool isShownAs(const Number& number, const std::string& text) {
    constexpr double kHalf = 0.5;
    constexpr double kTen = 10;
    const std::optional<ShownNumber> shown = shownNumber(text);
    if (!shown) {
        return false;
    }
    const double unit = std::pow(kTen, -shown->decimals);
    // Large numbers were shown in full, whatever their significant digits.
    return std::abs(number.value - shown->value) <= (kHalf + kRounding) * unit;
}

bool isSameText(const std::string& left, const std::string& right) {
    return left == right || guardedFormula(left) == right || left == guardedFormula(right);
}

bool isSame(const Cell& left, const Cell& right, bool isAsShown) {
    const auto* const one = std::get_if<Number>(&left);
    const auto* const other = std::get_if<Number>(&right);
    if (one != nullptr && other != nullptr) {
        return isClose(one->value, other->value);
    }
    if (isAsShown && one != nullptr) {
        return isShownAs(*one, cellText(right, {}));
    }
    if (isAsShown && other != nullptr) {
        return isShownAs(*other, cellText(left, {}));
    }
    return isSameText(cellText(left, {}), cellText(right, {}));
}

ChangeKind kindOf(Field field) {
    switch (field) {
        case Field::Quantity:
            return ChangeKind::Quantity;
        case Field::Level:
        case Field::Path:
        case Field::UsedIn:
            return ChangeKind::Moved;
        default:
            return ChangeKind::Value;
    }
}

class Comparer {
public:
    explicit Comparer(const std::vector<ComparedColumn>& columns) : columns_(columns) {}

    void compare(const ComparedLine& before, const ComparedLine& after) {
        const std::size_t count = changes.size();
        if (before.hasParents && after.hasParents && before.parents != after.parents) {
            changes.push_back({.kind = ChangeKind::Moved,
                               .item = after.item,
                               .column = "Used in",
                               .before = withCommas(before.parents),
                               .after = withCommas(after.parents)});
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
            if (columns_[column].field == Field::Quantity) {
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
        if (!isSame(before.cells[column], after.cells[column], about.isAsShown)) {
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

/// A row's parents by their part numbers; the root has another name in each file.
std::vector<std::string> parentsOf(const PartsList& list, const PartsRow& row) {
    std::set<std::string> parents;
    for (const Use& use : row.usedIn) {
        parents.insert(use.component == 0 ? "the top" : list.componentNumbers[use.component]);
    }
    return {parents.begin(), parents.end()};
}

std::optional<double> numberIn(const Cell& cell) {
    const Number* const number = std::get_if<Number>(&cell);
    return number == nullptr ? std::nullopt : std::optional(number->value);
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
        ComparedLine line{.item = list.componentNumbers[row.component],
                          .parents = parentsOf(list, row),
                          .hasParents = list.request.view != View::Indented};
        line.item += row.kind == RowKind::OwnBodies ? " (bodies of its own)" : "";
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
        if (shape != nullptr && row.kind == RowKind::Part) {
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
        const std::size_t common = std::min(lines.before.size(), lines.after.size());
        for (std::size_t index = 0; index < common; ++index) {
            comparer.compare(*lines.before[index], *lines.after[index]);
        }
        for (std::size_t index = common; index < lines.before.size(); ++index) {
            comparer.addLine(ChangeKind::Removed, *lines.before[index]);
        }
        for (std::size_t index = common; index < lines.after.size(); ++index) {
            comparer.addLine(ChangeKind::Added, *lines.after[index]);
        }
    }
    return {.before = {},
            .after = {},
            .changes = std::move(comparer.changes),
            .unchanged = comparer.unchanged};
}

}  // namespace parts
