#include "tests/support/case_name.h"
#include "tests/support/files.h"
#include "tests/support/real_files.h"
#include "tests/tarnix/properties/properties_fixture.h"

#include "host/session/input_actions.h"

#include <vector>

/// The dialog and the BOM edit the same properties, here of assemblies that were read from STEP.
namespace tarnix {
namespace {

using namespace adsk::core;
using Cells = std::vector<Ptr<CommandInput>>;

std::string textOf(const Ptr<CommandInput>& cell) {
    if (const Ptr<StringValueCommandInput> line = cell) {
        return line->value();
    }
    const Ptr<DropDownCommandInput> list = cell;
    return list && list->selectedItem() ? list->selectedItem()->name() : "";
}

class PropertiesOfAFile : public PropertiesTest {
protected:
    void SetUp() override {
        PropertiesTest::SetUp();
        test_support::writeFile(settingsFile(),
                                settingsWith(category("iProperty", {"QEMA_Colour;Colour"}) +
                                             category("bomItems", {"QEMA_Part Name;Name",
                                                                   "QEMA_Description;Description",
                                                                   "QEMA_Colour;Colour"})));
    }

    /// Edits all properties of a component that has this part number.
    void editInDialog(const std::string& path, const std::string& number) {
        openAndPick(path);
        EXPECT_EQ(value(kPartNumber), number);
        session->paste(kPartNumber, "X-1");
        session->paste(kPartName, "Edited");
        session->paste(kDescription, "in the dialog");
        session->paste("QEMA_Colour", "red");
        session->choose(kStructure, "Buy");
        session->ok();
    }

    /// Adds the attributes to a component: the BOM writes a custom property only where there is
    /// one.
    void acceptInDialog(const std::string& path) {
        openAndPick(path);
        session->ok();
    }

    /// Edits part number, structure, description and colour of a line of the parts list.
    void editInBom(const std::string& number) {
        showStructure();
        const Cells cells = cellsFrom(number);
        ASSERT_EQ(cells.size(), 5U);
        host::pasteText(cells[0], "Y-2");
        host::chooseItem(cells[1], "Divided");
        host::pasteText(cells[3], "in the BOM");
        host::pasteText(cells[4], "green");
        session->ok();
        session->cancel();
    }

    /// The row of the shown table with this part number, from that cell on, " | " between the
    /// cells.
    [[nodiscard]] std::string bomRow(const std::string& number) const {
        std::string all;
        for (const Ptr<CommandInput>& cell : cellsFrom(number)) {
            all += (all.empty() ? "" : " | ") + textOf(cell);
        }
        return all;
    }

private:
    /// The cells of the first row that shows a text, from there on.
    [[nodiscard]] Cells cellsFrom(const std::string& wanted) const {
        const Ptr<TableCommandInput> shown = shownTableInput();
        Cells cells;
        for (int row = 0; row < shown->rowCount() && cells.empty(); ++row) {
            for (const int column : host::shownColumns(shown)) {
                const Ptr<CommandInput> cell = shown->getInputAtPosition(row, column);
                if (!cells.empty() || textOf(cell) == wanted) {
                    cells.push_back(cell);
                }
            }
        }
        return cells;
    }
};

enum class From { ThisProject, AnotherSystem };

/// An assembly, and the part of it that each of the two dialogs edits.
struct Assembly {
    const char* name;
    From from;
    const char* file;
    const char* tab;  ///< of the BOM, which shows the first part
    const char* first;
    const char* firstNumber;
    const char* second;
    const char* secondNumber;
    const char* secondName;
};

class PropertiesOf : public PropertiesOfAFile, public testing::WithParamInterface<Assembly> {
protected:
    void SetUp() override {
        PropertiesOfAFile::SetUp();
        const bool isReal = GetParam().from == From::AnotherSystem;
        if (isReal) test_support::needRealFiles();
        if (IsSkipped()) return;
        session->open((isReal ? test_support::realFiles() : SAMPLES_FOLDER) / GetParam().file);
    }
};

TEST_P(PropertiesOf, EditedInTheDialogAreSeenByTheBom) {
    editInDialog(GetParam().first, GetParam().firstNumber);
    openBom();
    session->activateTab(GetParam().tab);

    EXPECT_EQ(bomRow("X-1"), "X-1 | Buy | Edited | in the dialog | red");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_P(PropertiesOf, EditedInTheBomAreSeenByTheDialog) {
    acceptInDialog(GetParam().second);
    editInBom(GetParam().secondNumber);
    openAndPick(GetParam().second);

    EXPECT_EQ(values(),
              std::string("Divided | Y-2 | ") + GetParam().secondName + " | in the BOM | green");
    EXPECT_EQ(uncaughtExceptions(), "");
}

INSTANTIATE_TEST_SUITE_P(Files, PropertiesOf,
                         testing::Values(Assembly{.name = "ASample",
                                                  .from = From::ThisProject,
                                                  .file = "camera-slider.step",
                                                  .tab = test_support::kStructureTab,
                                                  .first = "Rail 600:1",
                                                  .firstNumber = "CS-101",
                                                  .second = "Rail 600:1",
                                                  .secondNumber = "CS-101",
                                                  .secondName = "Rail 600"},
                                         Assembly{.name = "ARealFile",
                                                  .from = From::AnotherSystem,
                                                  .file = "as1-oc-214.stp",
                                                  .tab = test_support::kModelTab,
                                                  .first = "rod-assembly:1+rod:1",
                                                  .firstNumber = "rod",
                                                  .second = "plate:1",
                                                  .secondNumber = "plate",
                                                  .secondName = "plate"}),
                         test_support::caseName);

}  // namespace
}  // namespace tarnix
