#pragma once

#include "host/session/table_view.h"

#include <string>
#include <vector>

namespace workbench {

/// What the add-in's table shows, ready to be written down.
struct PartsList {
    std::vector<std::string> captions;           ///< of the shown columns; some have none
    std::vector<std::string> keys;               ///< a name for each column, no two alike
    std::vector<std::vector<std::string>> rows;  ///< a text for each caption
    std::string totalCaption;                    ///< empty where the tab shows no total
    std::string total;
};

/// Takes a shown table apart: its first row holds the captions. A column's key is its caption, or
/// "Image" for pictures and "Tree" for others without one; a key that is taken gets a number behind
/// it.
PartsList readPartsList(const host::TableView& table);

/// As lines for people.
std::string asTable(const PartsList& list);

/// As a JSON array with an object for each row, from key to text.
std::string asJson(const PartsList& list);

}  // namespace workbench
