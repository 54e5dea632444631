#pragma once

#include "parts/list_context.h"
#include "parts/parts_list.h"

#include <array>
#include <string>
#include <variant>

namespace parts {

/// What a row has for a column, in the host's units; the first where it has nothing.
using Value = std::variant<std::monostate, std::string, double, Extents, Picture>;

/// Works out what rows show. What the components of a row differ in is shown together: strings as
/// all that there are, in order; masses, areas and volumes as their means, so that totals stay
/// right; all else as that of the component that the row is named after.
class RowValues {
public:
    /// The context outlives it.
    explicit RowValues(ListContext& context) : context_(context) {}

    /// The value of a row whose places and members are known.
    Value of(const Column& column, const PartsRow& row);

    /// The same in the unit of the column.
    Cell cell(const Column& column, const PartsRow& row);

    /// What a row measures, all its members together.
    Measured sum(const PartsRow& row);

private:
    Value textOf(const Column& column, const PartsRow& row);
    Value numberOf(Field field, const PartsRow& row);
    Value meanOf(Field field, const PartsRow& row);
    Value sizeOf(Field field, const PartsRow& row);
    std::string memberText(const Column& column, std::size_t component) const;
    std::string materialOf(std::size_t component) const;
    [[nodiscard]] std::string joined(const Column& column, const PartsRow& row) const;
    [[nodiscard]] std::string usesText(const PartsRow& row) const;
    [[nodiscard]] Value pictureOf(const PartsRow& row) const;
    Measured measured(const PartsRow& row, std::size_t component);

    ListContext& context_;
};

}  // namespace parts
