#pragma once

#include "host/design/design_data.h"

#include <Core/CoreAll.h>

#include <set>
#include <string>

namespace test_support {

/// The texts that a design may hold after a dialog was accepted, whatever went wrong meanwhile:
/// those that it held before, and those of the table's cells, whole.
class WrittenTexts {
public:
    explicit WrittenTexts(const host::DesignData& before);

    /// Adds the texts of all cells, hidden ones too.
    void addTable(const adsk::core::Ptr<adsk::core::TableCommandInput>& table);

    /// A name, part number, description or attribute of the design that is none of these; empty for
    /// none.
    [[nodiscard]] std::string findStranger(const host::DesignData& after) const;

private:
    [[nodiscard]] bool isKnown(const std::string& text) const { return texts_.contains(text); }
    [[nodiscard]] bool isName(const std::string& text) const;
    [[nodiscard]] bool isDescription(std::string text) const;

    /// A structure that is set or not, and what a refused call returns, stand in no cell.
    std::set<std::string> texts_ = {"", "1"};
};

}  // namespace test_support
