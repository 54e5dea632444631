#include "tarnix/bom/behaviour/row_collapse.h"

#include "tests/tarnix/bom/behaviour/synthetic_table.h"

#include <gtest/gtest.h>

/// Folding asked for of rows that no click names.
namespace test_support {
namespace {

using namespace adsk::core;
using tarnix::collapseRows;

/// A table of the model table's id, in which row 0 has rows below it like any other.
class SyntheticFolding : public SyntheticTable {
protected:
    void SetUp() override {
        SyntheticTable::SetUp();
        show(kModelTable, 3, [&](const Ptr<CommandInputs>& inputs) {
            addRow(inputs, "1", "././Resources/BOM/ColapseAsm");
            addRow(inputs, "1.1", "././Resources/BOM/Part");
            addRow(inputs, "2", "././Resources/BOM/Part");
        });
    }

    void addRow(const Ptr<CommandInputs>& inputs, const std::string& position,
                const std::string& icon) {
        const int row = rows->rowCount();
        rows->addCommandInput(inputs->addBoolValueInput("", "", false, icon), row, 0);
        rows->addCommandInput(inputs->addStringValueInput("", "", position), row, 1);
        rows->addCommandInput(inputs->addStringValueInput("", "", "graph"), row, 2);
        rows->addCommandInput(inputs->addStringValueInput("", "", "part"), row, 3);
    }

    /// Of each row whether it shows, the last part of its icon's folder, and its graph.
    [[nodiscard]] std::string state() const {
        std::string lines;
        for (int row = 0; row < rows->rowCount(); ++row) {
            const Ptr<BoolValueCommandInput> toggle = rows->getInputAtPosition(row, 0);
            const Ptr<adsk::core::StringValueCommandInput> graph = rows->getInputAtPosition(row, 2);
            const std::string folder = toggle->resourceFolder();
            lines += row == 0 ? "" : "\n";
            lines += std::string(toggle->isVisible() ? "shown " : "hidden ") +
                     folder.substr(folder.rfind('/') + 1) + " " + graph->value();
        }
        return lines;
    }
};

constexpr const char* kUntouched = R"(
    shown ColapseAsm graph
    shown Part graph
    shown Part graph)";

TEST_F(SyntheticFolding, OfTheFirstRowDoesNothing) {
    collapseRows(rows, 0, /*showChildren=*/false);

    EXPECT_EQ(state(), text(kUntouched));
}

TEST_F(SyntheticFolding, UnfoldingTheFirstRowDoesNothing) {
    collapseRows(rows, 0, /*showChildren=*/true);

    EXPECT_EQ(state(), text(kUntouched));
}

TEST_F(SyntheticFolding, OfTheRowAfterTheLastDoesNothing) {
    EXPECT_NO_THROW(collapseRows(rows, 3, /*showChildren=*/false));
    EXPECT_NO_THROW(collapseRows(rows, 3, /*showChildren=*/true));

    EXPECT_EQ(state(), text(kUntouched));
}

TEST_F(SyntheticFolding, OfARowFarBeyondTheLastDoesNothing) {
    EXPECT_NO_THROW(collapseRows(rows, 8, /*showChildren=*/false));
    EXPECT_NO_THROW(collapseRows(rows, 8, /*showChildren=*/true));

    EXPECT_EQ(state(), text(kUntouched));
}

}  // namespace
}  // namespace test_support
