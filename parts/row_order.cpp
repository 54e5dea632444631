#include "parts/row_order.h"

#include "parts/natural_order.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace parts {
namespace {

bool isEmpty(const Value& value) {
    const auto* const text = std::get_if<std::string>(&value);
    return std::holds_alternative<std::monostate>(value) || (text != nullptr && text->empty());
}

int compareValues(double left, double right) {
    return static_cast<int>(left > right) - static_cast<int>(left < right);
}

int compareSizes(const Extents& left, const Extents& right) {
    return static_cast<int>(left.values > right.values) -
           static_cast<int>(left.values < right.values);
}

/// Both have a value of one kind: they are of one column.
int compare(const Value& left, const Value& right) {
    if (const auto* const text = std::get_if<std::string>(&left)) {
        return naturalOrder(*text, std::get<std::string>(right));
    }
    if (const auto* const number = std::get_if<double>(&left)) {
        return compareValues(*number, std::get<double>(right));
    }
    const auto* const extents = std::get_if<Extents>(&left);
    return extents == nullptr ? 0 : compareSizes(*extents, std::get<Extents>(right));
}

using Keys = std::vector<Value>;

bool isBefore(const Keys& left, const Keys& right, const std::vector<SortKey>& sort) {
    for (std::size_t key = 0; key < sort.size(); ++key) {
        if (isEmpty(left[key]) != isEmpty(right[key])) {
            return isEmpty(right[key]);
        }
        const int order = isEmpty(left[key]) ? 0 : compare(left[key], right[key]);
        if (order != 0) {
            return sort[key].isDescending ? order > 0 : order < 0;
        }
    }
    return false;
}

std::vector<Keys> keysOf(const std::vector<PartsRow>& rows, const std::vector<SortKey>& sort,
                         RowValues& values) {
    std::vector<Keys> keys(rows.size());
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (const SortKey& key : sort) {
            keys[row].push_back(values.of(key.column, rows[row]));
        }
    }
    return keys;
}

/// Puts rows into the order of the tree that they are, and numbers them.
class Numbering {
public:
    explicit Numbering(std::vector<PartsRow>& rows) : rows_(rows), below_(rows.size()) {}

    void run(const std::vector<std::size_t>& order) {
        std::vector<std::size_t> top;
        for (const std::size_t row : order) {
            (rows_[row].parent ? below_[*rows_[row].parent] : top).push_back(row);
        }
        placed_.reserve(rows_.size());
        place(top, std::nullopt, "");
        rows_ = std::move(placed_);
    }

private:
    void place(const std::vector<std::size_t>& siblings, std::optional<std::size_t> parent,
               const std::string& prefix) {
        std::size_t number = 0;
        for (const std::size_t sibling : siblings) {
            PartsRow& row = placed_.emplace_back(std::move(rows_[sibling]));
            row.parent = parent;
            row.item = prefix + std::to_string(++number);
            const std::string item = row.item;
            place(below_[sibling], placed_.size() - 1, item + ".");
        }
    }

    std::vector<PartsRow>& rows_;
    std::vector<std::vector<std::size_t>> below_;
    std::vector<PartsRow> placed_;
};

}  // namespace

void sortAndNumber(std::vector<PartsRow>& rows, const PartsRequest& request, RowValues& values) {
    std::vector<std::size_t> order(rows.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    if (!request.sort.empty()) {
        const std::vector<Keys> keys = keysOf(rows, request.sort, values);
        std::ranges::stable_sort(order, [&](std::size_t left, std::size_t right) {
            return isBefore(keys[left], keys[right], request.sort);
        });
    }
    Numbering(rows).run(order);
}

}  // namespace parts
