#pragma once

#include "parts/units.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace parts {

/// What a column shows.
enum class Field {
    Item,
    PartNumber,
    PartName,
    Description,
    Quantity,
    QuantityPerParent,
    Mass,
    TotalMass,
    Volume,
    Area,
    Density,
    Material,
    X,
    Y,
    Z,
    Size,
    Structure,
    Level,
    Path,
    UsedIn,
    Bodies,
    Document,
    Thumbnail,
    Property,  ///< a custom property
};

/// A column of a list, or a value that a filter, an order or a merging looks at.
struct Column {
    Field field = Field::PartNumber;
    std::string property = {};         ///< name of the custom property, without the add-in's prefix
    std::string caption = {};          ///< empty: the name of the field
    const Unit* unit = nullptr;        ///< null: that of the list
    std::optional<int> decimals = {};  ///< nothing: by significant digits
    bool isChosenProperty = false;     ///< a design need not have it: it was named by "property:"

    bool operator==(const Column&) const = default;
};

/// What is known of a field.
struct FieldInfo {
    Field field = Field::Item;
    const char* name = "";  ///< in options, and the caption where none is chosen
    const char* key = "";   ///< in JSON
    Dimension dimension = Dimension::None;
    bool isMeasured = false;  ///< its values need the bodies
    bool isNumber = false;
    bool isOfComponent = false;  ///< a component has it wherever it is, and however often
};

/// Of all fields but `Property`.
const std::vector<FieldInfo>& fieldInfos();

/// Of a field; of `Property` what custom properties have in common.
const FieldInfo& infoOf(Field field);

/// The name of what a column shows: a field's, or that of the custom property.
std::string nameOf(const Column& column);

/// Over the column: the caption or the name, with the unit in brackets.
std::string captionOf(const Column& column, const Units& units);

/// Reads "NAME[=CAPTION][UNIT][:DECIMALS]", as in "Mass=Weight[g]:2". A name that is no field's is
/// that of a custom property, as is any name after "property:". A backslash takes the next
/// character as it stands. Throws a `RequestError`.
Column parseColumn(std::string_view text);

/// Several of them, with commas between. Throws a `RequestError`.
std::vector<Column> parseColumns(std::string_view text);

/// The entries of a list with commas between, without spaces around them; a backslash keeps a
/// comma.
std::vector<std::string_view> splitList(std::string_view text);

/// Reads back the same by `parseColumn`.
std::string columnText(const Column& column);

}  // namespace parts
