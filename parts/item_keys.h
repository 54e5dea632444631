#pragma once

#include "parts/list_context.h"
#include "parts/parts_list.h"
#include "parts/row_values.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace parts {

/// Which components are one item, as the request merges them.
class ItemKeys {
public:
    /// The context outlives it. Throws a `RequestError` for merging by shapes that were not
    /// compared.
    explicit ItemKeys(ListContext& context);

    /// Equal for components that are one item, and only for those.
    const std::string& keyOf(std::size_t component);

    /// What a component is merged by, for people to read, such as its part number.
    std::string textOf(std::size_t component);

    /// Equal numbers for components that are one item and hold the same as well, down to the last
    /// part.
    int contentOf(std::size_t component);

private:
    [[nodiscard]] PartsRow rowOf(std::size_t component) const;
    void findSteps();
    std::string makeKey(std::size_t component);
    std::string valuesOf(std::size_t component);
    std::string contentText(std::size_t component);

    ListContext& context_;
    RowValues values_;
    std::vector<std::optional<std::string>> keys_;
    std::vector<std::optional<int>> contents_;
    std::map<std::string, int> contentNumbers_;

    /// For each column that is merged by its numbers in order: the first of those that are equal.
    std::vector<std::vector<double>> steps_;
};

}  // namespace parts
