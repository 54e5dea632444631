#pragma once

#include "tarnix/properties/property_store.h"

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

/// Everything the BOM dialog shows comes out of one flat list of rows. A walk over the design fills
/// the list (`walk.h`), occurrences of the same item are merged into one row, which marks what
/// differs between them (`merging.h`), and one function turns a row and a property's key into the
/// text of a cell (`columns.h`). The tabs only lay these values out.
namespace tarnix {

/// The `BomRow::pathName` of the last row of a finished subtree.
inline constexpr const char* kSubtreeEnd = "-1";

/// One visited occurrence of the design, as the dialog shows it.
///
/// A row is a value: copy it freely. A copy holds further references on the same host objects; its
/// properties are its own, and merging changes them without touching the design's attributes.
struct BomRow {
    adsk::core::Ptr<adsk::fusion::Component> component;
    adsk::core::Ptr<adsk::fusion::Occurrence> occurrence;

    /// Empty at level 1, else "." and the ordinal among the siblings, counted from 1.
    std::string relativePosition;

    std::size_t childCount = 0;  ///< a row is an assembly exactly when this is above 0

    /// The occurrence's path, or `kSubtreeEnd`: for the path, ask the occurrence.
    std::string pathName;

    int quantity = 1;       ///< occurrences merged into this row, itself included
    int level = 0;          ///< 1 directly under the root component
    bool combined = false;  ///< occurrences of another name were merged into this row

    /// The component's properties, in the order of the store.
    std::vector<PropertyEntry> properties;
};

/// What a walk works on.
struct BomModel {
    std::vector<BomRow> rows;  ///< in walk order

    /// Names of the custom properties met, without prefix, in the order of first sight. Never
    /// emptied here, so a name stays known for as long as the model lives.
    std::vector<std::string> userPropertyNames;
};

/// The values that a component's BOM structure can have, in the order of every drop-down. Each is a
/// property of its own that holds "1" or "0".
inline constexpr std::array<const char*, 5> kBomStructures = {"Produce", "Buy", "AsPart", "Divided",
                                                              "Reference"};

/// True when the row has an entry of that key with the value exactly "1"; an entry of that key with
/// another value does not end the search.
bool isPropertySet(const BomRow& row, const std::string& key);

/// Gives the memory of a row's properties back, where it is kept for what was visited alone.
void dropProperties(BomRow& row);
void dropProperties(std::vector<BomRow>& rows);

/// The key of the row's first entry whose value is exactly "1", an empty string where there is
/// none. All entries are looked at: a part number, or a custom property, of "1" ahead of the
/// structure's keys wins.
std::string firstSetProperty(const BomRow& row);

}  // namespace tarnix
