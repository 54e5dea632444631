#pragma once

#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"
#include "tests/tarnix/bom/behaviour/reference_write_back.h"

#include <string>
#include <vector>

namespace test_support {

/// What the write-back of the open dialog makes of the design, against what the reference makes.
class WrittenDesign : public BomDialogTest {
protected:
    /// Everything of a design but its bodies: components with their texts, attributes, materials
    /// and sketches, and where and how they are used.
    [[nodiscard]] static std::string describe(const host::DesignData& design);

    /// The ids of the cells of a column of the shown table that the user can reach, from the top.
    [[nodiscard]] std::vector<std::string> cellIds(int column) const;

    /// Unfolds assemblies of the model table from the top, at most this many.
    void unfold(int atMost);

    /// Accepts the dialog with `tab` shown, has the reference do its work on an equal design, and
    /// expects the two to be equal, what they threw included. The dialog is closed then, and the
    /// design that the reference wrote is open.
    void expectWrittenLikeTheReference(reference::Tab tab, int configuredColumns);

    /// Saves the open design, opens the file, and expects nothing to be lost on the way.
    void expectKeptInItsFile();

private:
    /// Accepts the dialog and returns what that threw, empty for nothing.
    std::string accept();
};

}  // namespace test_support
