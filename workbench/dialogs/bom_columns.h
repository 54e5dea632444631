#pragma once

#include "host/session/table_view.h"

#include <string>
#include <vector>

namespace workbench {

/// A visible column of a BOM table, with the names by which the command line knows it.
struct BomColumn {
    int column = 0;        ///< of the table, hidden columns counted
    std::string key;       ///< its caption as it is printed
    std::string property;  ///< of a configured column, else empty
};

/// The visible columns, in order.
std::vector<BomColumn> columnsOf(const host::TableView& table);

/// The column of a name, which is searched among the keys, then among the properties. Where there
/// is none it throws a `Failure` that begins with `what` and lists the keys.
BomColumn findColumn(const std::vector<BomColumn>& columns, const std::string& name,
                     const std::string& what);

}  // namespace workbench
