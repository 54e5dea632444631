#pragma once

#include "tarnix/bom/model/bom_row.h"

#include <string>
#include <vector>

/// The columns of the BOM tables that the user configures: which there are to choose from, how the
/// settings hold the choice, and what a cell shows.
///
/// Built-in columns show what the host knows of an item, such as its mass; one table in
/// `columns.cpp` holds all there is to say of each, and a new one is a line there. Every custom
/// property is a column too. A column's key is the prefix and its name.
namespace tarnix {

/// What the key of a property or of a column begins with.
inline constexpr const char* kPropertyPrefix = "QEMA_";

/// A key without its prefix, whatever the prefix is. Throws `std::out_of_range` ("invalid string
/// position") for a key that is shorter than that.
std::string withoutPrefix(const std::string& key);

/// A configured column.
struct Column {
    std::string key;
    std::string label;  ///< its caption, without the unit
};

/// Splits an item of the settings at its first ";" into key and label; without one it is its own
/// key and its own label.
Column columnOf(const std::string& item);

/// The item by which the settings hold the column of the property `name` under `label`.
std::string columnItem(const std::string& name, const std::string& label);

/// Whether `name` is a built-in column's. "Part Number" is one that is not offered.
bool isBuiltInName(const std::string& name);

/// The entries of a list to choose a column from: the names of the built-in columns and of
/// `userProperties`, with headings between them. A heading is an entry like the others.
std::vector<std::string> offeredEntries(const std::vector<std::string>& userProperties);

/// The entry that offers nothing.
inline constexpr const char* kSelectOne = "---Select One---";

/// Whether an entry of the list only heads others, so that choosing it chooses no property.
bool isHeading(const std::string& entry);

/// The caption of a column: `label`, with a unit where it is the name of a column that has one.
std::string labelWithUnit(const std::string& label);

/// The text of a configured cell: the column of `key`, a property's name after its prefix.
///
/// Area is in cm2, volume in cm3, mass in kg, density in kg/m3, lengths are in mm along the axes of
/// the component's own box. Whatever else the key names is looked for in the row's properties, the
/// last one of that key, else the cell is empty. Each call asks the host again. Throws
/// `std::out_of_range` ("invalid string position") for a key shorter than the prefix.
std::string bomCellValue(const BomRow& row, const std::string& key);

}  // namespace tarnix
