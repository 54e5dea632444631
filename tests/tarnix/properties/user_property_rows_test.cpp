#include "tarnix/properties/properties_dialog.h"
#include "tests/host/ui/host_test.h"

#include <string>

namespace tarnix {
namespace {

using namespace adsk::core;

/// The table of the custom properties alone, in the test's dialog.
class UserPropertyRows : public host::HostTest {
protected:
    UserPropertyRows() {
        const Ptr<CommandInputs> inputs = openWith([](const Ptr<CommandInputs>& all) {
            all->addTabCommandInput("tab", "")->children()->addTableCommandInput(
                "table", "Property", 1, "1");
        });
        table = inputs->itemById("table");
    }

    /// The rows, each as "id name value".
    [[nodiscard]] std::string rows() const {
        std::string all;
        for (int row = 0; row < table->rowCount(); ++row) {
            const Ptr<StringValueCommandInput> cell = table->getInputAtPosition(row, 0);
            all += (row == 0 ? "" : " | ") + cell->id() + " " + cell->name() + " " + cell->value();
        }
        return all;
    }

    Ptr<TableCommandInput> table;
};

TEST_F(UserPropertyRows, AreCountedOverAllTables) {
    ASSERT_EQ(filledRowCounter, 15072);

    fillUserPropertyTable(table, {"QEMA_Colour;Colour", "QEMA_Size;Size"});
    EXPECT_EQ(filledRowCounter, 15074);

    fillUserPropertyTable(table, {"QEMA_Norm;Norm"});
    EXPECT_EQ(filledRowCounter, 15075);
    EXPECT_EQ(addedRowCounter, 15095);
}

TEST_F(UserPropertyRows, ComeAfterThoseThatTheTableHas) {
    fillUserPropertyTable(table, {"QEMA_Colour;Colour"});
    fillUserPropertyTable(table, {"QEMA_Size;Size; large"});

    EXPECT_EQ(rows(), "QEMA_Colou Colour Colour | QEMA_Siz Size; large Size; large");
}

TEST_F(UserPropertyRows, OfAnEntryWithoutSemicolonHaveItWholeAsIdAndName) {
    fillUserPropertyTable(table, {"QEMA_Colour", "x;Single"});

    EXPECT_EQ(rows(), "QEMA_Colour QEMA_Colour QEMA_Colour |  Single Single");
    EXPECT_EQ(table->maximumVisibleRows(), 20);
}

TEST_F(UserPropertyRows, OfAnEmptyKeyHaveAnEmptyId) {
    fillUserPropertyTable(table, {";x"});

    EXPECT_EQ(rows(), " x x");
}

TEST_F(UserPropertyRows, AreTwentyAtATimeAlsoWithoutAny) {
    fillUserPropertyTable(table, {});

    EXPECT_EQ(rows(), "");
    EXPECT_EQ(table->maximumVisibleRows(), 20);
}

}  // namespace
}  // namespace tarnix
