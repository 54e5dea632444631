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

std::string textOf(const Value& value) {
    if (const auto* const text = std::get_if<std::string>(&value)) {
        return *text;
    }
    const auto* const number = std::get_if<double>(&value);
    return number == nullptr ? "" : numberText({.value = *number}, {});
}

}  // namespace

bool matches(const Filter& filter, const Value& value) {
    if (filter.number) {
        const auto* const number = std::get_if<double>(&value);
        return number == nullptr
                   ? filter.comparison == Comparison::NotEqual
                   : holds(filter.comparison, compareClosely(*number, *filter.number));
    }
    const std::string text = textOf(value);
    if (filter.comparison == Comparison::Contains) {
        return lowerCase(text).find(lowerCase(filter.text)) != std::string::npos;
    }
    return holds(filter.comparison, naturalOrder(text, filter.text));
}

std::vector<bool> filterRows(std::vector<PartsRow>& rows, const PartsRequest& request,
                             RowValues& values) {
    std::vector<bool> isWanted(rows.size(), true);
    std::vector<bool> isKept(rows.size(), true);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        isWanted[row] = std::ranges::all_of(request.filters, [&](const Filter& filter) {
            return matches(filter, values.of(filter.column, rows[row]));
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
