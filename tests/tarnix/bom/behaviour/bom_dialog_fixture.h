#pragma once

#include "tests/support/addin_test.h"

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <string>

namespace test_support {

/// The open BOM dialog, and what is asked of it and of the design below it.
class BomDialogTest : public AddinTest {
protected:
    /// The paths of the occurrences that are selected in the design, one a line, each once.
    [[nodiscard]] std::string selected() const;

    /// Selects an occurrence directly under the root, as the user did before.
    void select(std::size_t index) const;

    /// The active design's root component.
    [[nodiscard]] adsk::core::Ptr<adsk::fusion::Component> root() const;

    /// The component of the occurrence at this place directly under the root.
    [[nodiscard]] adsk::core::Ptr<adsk::fusion::Component> component(std::size_t index) const;

    /// The value of a text field of the dialog.
    [[nodiscard]] std::string value(const std::string& id) const;

    /// Hides all cells of a row of the shown table.
    void hideRow(int row) const;
};

}  // namespace test_support
