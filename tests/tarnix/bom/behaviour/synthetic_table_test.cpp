#include "tarnix/bom/behaviour/bom_export.h"
#include "tarnix/bom/behaviour/structure_refresh.h"

#include "tests/support/files.h"
#include "tests/tarnix/bom/behaviour/synthetic_table.h"

#include <gtest/gtest.h>

/// Behaviour that no cell of the dialog's tables can show, on a table that the test makes.
namespace test_support {
namespace {

using namespace adsk::core;

TEST_F(SyntheticTable, IsExportedWithTheUnderscoresOfItsTextBoxesAsSpaces) {
    show("synthetic", 1, [&](const Ptr<CommandInputs>& inputs) {
        rows->addCommandInput(inputs->addStringValueInput("", "", "first"), 0, 0);
        rows->addCommandInput(inputs->addTextBoxCommandInput("", "", "a_b", 1, true), 0, 1);
        inputs->addStringValueInput("idAllMass", "", "1.000");
    });

    tarnix::writeBomCsv("synthetic.csv", rows);

    EXPECT_EQ(readFile("synthetic.csv"),
              "a b;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;1.000\r\n");
}

TEST_F(SyntheticTable, IsExportedWithoutCellsThatHoldNoText) {
    show("synthetic", 4, [&](const Ptr<CommandInputs>& inputs) {
        rows->addCommandInput(inputs->addStringValueInput("", "", "first"), 0, 0);
        rows->addCommandInput(inputs->addImageCommandInput("", "", "x.png"), 0, 1);
        rows->addCommandInput(inputs->addStringValueInput("", "", "graph"), 0, 2);
        rows->addCommandInput(inputs->addStringValueInput("", "", "last"), 0, 4);
        inputs->addStringValueInput("idAllMass", "");
    });

    tarnix::writeBomCsv("synthetic.csv", rows);

    EXPECT_EQ(readFile("synthetic.csv"),
              "last;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;\r\n");
}

/// Tables with a drop-down in column 3, as no table of the dialog has.
class SyntheticReferences : public SyntheticTable {
protected:
    /// A row for each position; in the one after the header "Reference" is chosen.
    void showReferences(const std::string& id, const std::vector<std::string>& positions) {
        show(id, 3, [&](const Ptr<CommandInputs>& inputs) {
            for (const std::string& position : positions) {
                addRow(inputs, position);
            }
            const Ptr<DropDownCommandInput> first = rows->getInputAtPosition(1, 3);
            first->listItems()->add("Reference", true);
        });
    }

    void addRow(const Ptr<CommandInputs>& inputs, const std::string& position) {
        const int row = rows->rowCount();
        const std::string number = "_" + std::to_string(row);
        rows->addCommandInput(inputs->addBoolValueInput("", "", false), row, 0);
        rows->addCommandInput(inputs->addBoolValueInput("", position, false), row, 1);
        rows->addCommandInput(inputs->addBoolValueInput("", "", false), row, 2);
        rows->addCommandInput(
            inputs->addDropDownCommandInput("structure" + number, "", TextListDropDownStyle), row,
            3);
    }

    /// The positions of the rows whose first cell shows, with spaces between.
    [[nodiscard]] std::string shownPositions() const {
        std::string positions;
        for (int row = 0; row < rows->rowCount(); ++row) {
            if (rows->getInputAtPosition(row, 0)->isVisible()) {
                positions += (positions.empty() ? "" : " ");
                positions += rows->getInputAtPosition(row, 1)->name();
            }
        }
        return positions;
    }
};

TEST_F(SyntheticReferences, InATableOfTheCaptionsIdHideTheRowAfterThemAndThoseBelowIt) {
    showReferences("BOM Structure", {"Pos.", "1", "2", "2.1", "2", "2.2", "3", "2.3"});

    tarnix::refreshStructureTable(nullptr, rows);

    EXPECT_EQ(shownPositions(), "Pos. 1 2 3 2.3");
}

TEST_F(SyntheticReferences, InAnyOtherTableHideNothing) {
    showReferences("QEMA_bom_structure", {"Pos.", "1", "2", "2.1"});

    tarnix::refreshStructureTable(nullptr, rows);

    EXPECT_EQ(shownPositions(), "Pos. 1 2 2.1");
}

}  // namespace
}  // namespace test_support
