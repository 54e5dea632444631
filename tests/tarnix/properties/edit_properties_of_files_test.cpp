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

/// An assembly of this project.
class PropertiesOfASample : public PropertiesOfAFile {
protected:
    void SetUp() override {
        PropertiesOfAFile::SetUp();
        session->open(std::filesystem::path(SAMPLES_FOLDER) / "camera-slider.step");
    }
};

/// An assembly that another system wrote, where there is one.
class PropertiesOfARealFile : public PropertiesOfAFile {
protected:
    void SetUp() override {
        PropertiesOfAFile::SetUp();
        test_support::needRealFiles();
        if (!IsSkipped()) {
            session->open(test_support::realFiles() / "as1-oc-214.stp");
        }
    }
};

}  // namespace

TEST_F(PropertiesOfASample, EditedInTheDialogAreSeenByTheBom) {
    editInDialog("Rail 600:1", "CS-101");
    showStructure();

    EXPECT_EQ(bomRow("X-1"), "X-1 | Buy | Edited | in the dialog | red");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(PropertiesOfASample, EditedInTheBomAreSeenByTheDialog) {
    acceptInDialog("Rail 600:1");
    editInBom("CS-101");
    openAndPick("Rail 600:1");

    EXPECT_EQ(values(), "Divided | Y-2 | Rail 600 | in the BOM | green");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(PropertiesOfARealFile, EditedInTheDialogAreSeenByTheBom) {
    editInDialog("rod-assembly:1+rod:1", "rod");
    showModel();

    EXPECT_EQ(bomRow("X-1"), "X-1 | Buy | Edited | in the dialog | red");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(PropertiesOfARealFile, EditedInTheBomAreSeenByTheDialog) {
    acceptInDialog("plate:1");
    editInBom("plate");
    openAndPick("plate:1");

    EXPECT_EQ(values(), "Divided | Y-2 | plate | in the BOM | green");
    EXPECT_EQ(uncaughtExceptions(), "");
}

}  // namespace tarnix
