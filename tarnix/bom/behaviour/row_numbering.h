#pragma once

#include <Core/CoreAll.h>

#include <string>

/// The numbering of a table's rows after some were taken out of sight.
namespace tarnix {

/// Works out the numbers of the visible rows from row to row: what a row gets depends on its own
/// position and those around it.
///
/// The rule is kept by the letter. It counts how much deeper a row is, not through which
/// levels: two levels below 3 is 3.2.
class RowNumbers {
public:
    /// Where the next visible row is.
    struct Place {
        std::string position;   ///< the row's own
        int previousDepth = 0;  ///< of the row before, visible or not
        int nextDepth = 0;      ///< of the row after; the row's own depth where there is none
    };

    /// The number of the next row at the top.
    const std::string& nextTop();

    /// The number of the next row below the top.
    ///
    /// Throws "invalid stoi argument" or "invalid string position" where what it has to count on
    /// from is no number.
    const std::string& nextNested(const Place& place);

private:
    std::string numberAfterDeeper(const Place& place, int depth) const;
    std::string numberBesideEqual() const;

    int counter_ = 1;      ///< the next number at the top
    std::string last_;     ///< the last number given
    std::string current_;  ///< stays as it is for a row to which no rule applies
};

/// Numbers the visible rows of `table` again.
///
/// Only text boxes in column 1 take the number, after an indent in the colour of the background. A
/// button keeps its name, so that on the Structure table nothing changes on screen. Throws a plain
/// `std::exception` for a row without a text box or button in column 1.
void renumberVisibleRows(adsk::core::Ptr<adsk::core::TableCommandInput> table);

}  // namespace tarnix
