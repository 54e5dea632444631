#include "parts/row_filter.h"

#include "parts/ascii.h"
#include "parts/natural_order.h"
#include "parts/number_text.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

namespace parts {
namespace {

// A value was worked out, what it is compared with was typed.
constexpr double kEqualWithin = 1e-9;

int compareClosely(double left, double right) {
    if (std::abs(left - right) <= kEqualWithin * std::max(std::abs(left), std::abs(right))) {
        return 0;
    }
    return left < right ? -1 : 1;
}

bool holds(Comparison comparison, int order) {
    switch (comparison) {
        case Comparison::NotEqual:
            return order != 0;
        case Comparison::Less:
            return order < 0;
        case Comparison::Greater:
            return order > 0;
        case Comparison::LessOrEqual:
            return order <= 0;
        case Comparison::GreaterOrEqual:
            return order >= 0;
        default:
            return order == 0;
    }
}

bool matches(const Filter& filter, double value) {
    return holds(filter.comparison, compareClosely(value, *filter.number));
}

bool matches(const Filter& filter, const std::string& text) {
    if (filter.comparison == Comparison::Contains) {
        return lowerCase(text).find(lowerCase(filter.text)) != std::string::npos;
    }
    return holds(filter.comparison, naturalOrder(text, filter.text));
}

/// The column that a filter is about as the list shows it, so that its texts are those one sees.
const Column& shownColumn(const Filter& filter, const PartsRequest& request) {
    if (filter.column.unit != nullptr || filter.column.decimals) {
        return filter.column;
    }
    const auto shown = std::ranges::find_if(request.columns, [&](const Column& column) {
        return column.field == filter.column.field && column.property == filter.column.property;
    });
    return shown == request.columns.end() ? filter.column : *shown;
}

bool matches(const Filter& filter, const PartsRow& row, const PartsRequest& request,
             RowValues& values) {
    if (!filter.number) {
        return matches(filter, cellText(values.cell(shownColumn(filter, request), row), {}));
    }
    const Value value = values.of(filter.column, row);
    const auto* const number = std::get_if<double>(&value);
    return number == nullptr ? filter.comparison == Comparison::NotEqual : matches(filter, *number);
}

}  // namespace

std::vector<bool> filterRows(std::vector<PartsRow>& rows, const PartsRequest& request,
                             RowValues& values) {
    std::vector<bool> isWanted(rows.size(), true);
    std::vector<bool> isKept(rows.size(), true);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        isWanted[row] = std::ranges::all_of(request.filters, [&](const Filter& filter) {
            return matches(filter, rows[row], request, values);
        });
    }
    isKept = isWanted;
    for (std::size_t row = rows.size(); row-- > 0;) {
        if (isKept[row] && rows[row].parent) {
            isKept[*rows[row].parent] = true;
        }
    }
    std::vector<std::size_t> newIndex(rows.size());
    std::vector<PartsRow> kept;
    std::vector<bool> wanted;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        newIndex[row] = kept.size();
        if (isKept[row]) {
            wanted.push_back(isWanted[row]);
            kept.push_back(std::move(rows[row]));
            if (kept.back().parent) {
                kept.back().parent = newIndex[*kept.back().parent];
            }
        }
    }
    rows = std::move(kept);
    return wanted;
}

}  // namespace parts
