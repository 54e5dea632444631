#pragma once

#include "host/design/design_data.h"

#include <Core/CoreAll.h>

#include <set>
#include <string>

namespace test_support {

/// The strings that a design may hold after a dialog was accepted, whatever went wrong meanwhile:
/// those that it held before, and those of the table's cells, whole.
class WrittenStrings {
public:
    explicit WrittenStrings(const host::DesignData& before);

    /// Adds the strings of all cells, hidden ones too.
    void addTable(const adsk::core::Ptr<adsk::core::TableCommandInput>& table);

    /// A name, part number, description or attribute of the design that is none of these; an empty
    /// string where there is none.
    [[nodiscard]] std::string findUnexpected(const host::DesignData& after) const;

private:
    [[nodiscard]] bool isKnown(const std::string& text) const { return known_.contains(text); }
    [[nodiscard]] bool isName(const std::string& text) const;
    [[nodiscard]] bool isDescription(std::string text) const;

    /// The values of a structure, and what a refused call returns, are in no cell.
    std::set<std::string> known_ = {"", "1"};
};

}  // namespace test_support
