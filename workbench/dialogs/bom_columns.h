#pragma once

#include "host/session/table_view.h"

#include <string>
#include <vector>

namespace workbench {

/// A column of a shown table, with the names by which the command line knows it.
struct ShownColumn {
    int column = 0;        ///< of the table, hidden columns counted
    std::string key;       ///< its caption as it is printed
    std::string property;  ///< of a configured column, else empty
};

/// The shown columns, in order.
std::vector<ShownColumn> columnsOf(const host::TableView& table);

/// The column of a name, its key before its property. Throws a `Failure` that begins with `what`
/// and tells the keys, where there is none.
ShownColumn findColumn(const std::vector<ShownColumn>& columns, const std::string& name,
                       const std::string& what);

/// The names in quotes, with commas between them.
std::string quoted(const std::vector<std::string>& names);

}  // namespace workbench
