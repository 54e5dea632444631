#pragma once

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <string>
#include <utility>
#include <vector>

/// The write-back as plainly as it can be written. It takes what a table shows and no table, so
/// that the dialog may be gone by then: the product's own is compared with it on an equal design.
namespace reference {

/// What the write-back reads of a cell.
struct Cell {
    enum class Kind { None, Field, DropDown, Image, Other };

    Kind kind = Kind::None;
    std::string id;
    std::string text;  ///< of a field; of an image its file
    std::vector<std::pair<std::string, bool>>
        choices;  ///< of a drop-down, and whether it is chosen
};

using Table = std::vector<std::vector<Cell>>;

/// All cells of a table, with those beyond `numberOfColumns`.
Table capture(const adsk::core::Ptr<adsk::core::TableCommandInput>& table);

/// Which of the two tables is written.
enum class Tab { Structure, Model };

/// Writes the table into the components below `root`, with this number of configured columns.
void writeBack(const adsk::core::Ptr<adsk::fusion::Component>& root, const Table& table, Tab tab,
               int configuredColumns);

}  // namespace reference
