#include "parts/xlsx_totals.h"

#include <algorithm>
#include <cmath>

namespace parts {
namespace {

/// Whether a row is in the total itself, rather than what it consists of.
bool isCountedIn(Field field, const PartsList& list, const PartsRow& row) {
    if (list.request.view == View::Indented && field == Field::TotalMass) {
        return !row.parent.has_value();
    }
    const bool isOpened = row.kind == RowKind::Assembly;
    return field == Field::Quantity ? !isOpened : !(isOpened && list.request.view == View::All);
}

std::optional<double> totalValue(const PartsList& list, const ListColumn& column) {
    if (column.column.field == Field::Quantity) {
        return static_cast<double>(list.totals.quantity);
    }
    if (column.column.field != Field::TotalMass || !list.totals.massKg) {
        return std::nullopt;
    }
    return *list.totals.massKg * (column.unit == nullptr ? 1 : column.unit->factor);
}

double sumOf(const PartsList& list, std::size_t column, const std::vector<bool>& isCounted) {
    double sum = 0;
    for (std::size_t row = 0; row < list.rows.size(); ++row) {
        const Number* const number = std::get_if<Number>(&list.rows[row].cells[column]);
        sum += isCounted[row] && number != nullptr ? number->value : 0;
    }
    return sum;
}

}  // namespace

std::optional<ColumnTotal> totalOf(const PartsList& list, std::size_t column) {
    const std::optional<double> value = totalValue(list, list.columns[column]);
    if (!value) {
        return std::nullopt;
    }
    ColumnTotal total{.value = *value, .isCounted = {}, .isOfAllRows = false};
    for (const PartsRow& row : list.rows) {
        total.isCounted.push_back(isCountedIn(list.columns[column].column.field, list, row));
    }
    constexpr double kRounding = 1e-9;
    if (std::abs(sumOf(list, column, total.isCounted) - *value) > kRounding * std::abs(*value)) {
        total.isCounted.clear();
    }
    total.isOfAllRows = !total.isCounted.empty() &&
                        std::ranges::find(total.isCounted, false) == total.isCounted.end();
    return total;
}

}  // namespace parts
