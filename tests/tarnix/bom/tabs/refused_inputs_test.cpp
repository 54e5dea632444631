#include "tests/tarnix/bom/tabs/bom_tabs_test.h"

#include "host/base/gate.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace tarnix {
namespace {

/// The dialog of a host that refuses one of its inputs.
class RefusedInput : public BomTabsTest {
protected:
    /// Opens the dialog while the host refuses the `nth` call of this name.
    void openBomRefusing(const std::string& name, std::uint64_t nth) {
        host::gate::reset();
        host::gate::refuse(name, nth);
        openBom();
        ASSERT_EQ(host::gate::refusedCall(), name);
    }
};

const char* const kAllTabs =
    "QEMA_tab_models_BOM \"Data of Model\"\n"
    "QEMA_tab_structure_BOM \"Structure\"\n"
    "QEMA_tab_config_BOM \"BOM Configuration\"";

TEST_F(RefusedInput, OfATabLeavesItOutQuietly) {
    open("Bolt");
    openBomRefusing("CommandInputs::addTabCommandInput", 1);
    EXPECT_EQ(tabs(), text(R"(
        QEMA_tab_structure_BOM "Structure"
        QEMA_tab_config_BOM "BOM Configuration")"));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(RefusedInput, OfTheChildrenOfATabLeavesItEmptyQuietly) {
    open("Bolt");
    openBomRefusing("TabCommandInput::children", 3);
    EXPECT_EQ(tabs(), kAllTabs);
    EXPECT_FALSE(session->dialog()->commandInputs()->itemById("QEMA_btnSaveConfigBom"));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(RefusedInput, OfTheModelsTableLeavesTheTabWithItsButton) {
    open("Bolt");
    openBomRefusing("CommandInputs::addTableCommandInput", 1);
    EXPECT_EQ(tabs(), kAllTabs);
    EXPECT_FALSE(session->dialog()->commandInputs()->itemById("QEMA_bom_models"));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(RefusedInput, OfTheModelsExportButtonThrowsAPlainException) {
    open("Bolt");
    openBomRefusing("CommandInputs::addBoolValueInput", 1);
    ASSERT_EQ(session->uncaughtExceptions().size(), 1U);
    EXPECT_EQ(session->uncaughtExceptions().at(0).type, "std::exception");
}

TEST_F(RefusedInput, OfTheSortOrderEndsTheStructureTabWithWhatStands) {
    open("");
    openBomRefusing("CommandInputs::addDropDownCommandInput", 1);
    EXPECT_EQ(tabs(), kAllTabs);
    EXPECT_FALSE(session->dialog()->commandInputs()->itemById("QEMA_bom_structure"));
    EXPECT_FALSE(session->dialog()->commandInputs()->itemById("idAllMass"));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(RefusedInput, OfTheStructureTableLeavesTheMassOut) {
    open("");
    openBomRefusing("CommandInputs::addTableCommandInput", 2);
    EXPECT_TRUE(session->dialog()->commandInputs()->itemById("QEMA_droDown_AscDesc"));
    EXPECT_FALSE(session->dialog()->commandInputs()->itemById("idAllMass"));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(RefusedInput, OfAPropertyListLeavesTheDropDownsInFrontOfIt) {
    open("");
    // The first list is that of the sort order.
    openBomRefusing("DropDownCommandInput::listItems", 4);
    EXPECT_EQ(ids(kConfigurationTable, 2),
              " colapseRow positionOcc partNumberOcc bomStructure iProperty_0 iProperty_1");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(RefusedInput, OfAPropertyListThrowsWhereAColumnIsSavedForIt) {
    configure({"QEMA_Mass;Mass"});
    open("");
    openBomRefusing("DropDownCommandInput::listItems", 2);
    ASSERT_EQ(session->uncaughtExceptions().size(), 1U);
    EXPECT_EQ(session->uncaughtExceptions().at(0).text, "invalid vector subscript");
}

TEST_F(RefusedInput, OfThePhysicalPropertiesThrowsAPlainException) {
    configure({"QEMA_Mass;Mass"});
    open("Bolt");
    openBomRefusing("Component::getPhysicalProperties", 1);
    ASSERT_EQ(session->uncaughtExceptions().size(), 1U);
    EXPECT_EQ(session->uncaughtExceptions().at(0).type, "std::exception");
}

TEST_F(RefusedInput, OfAnOccurrenceSkipsItQuietly) {
    open(R"(
        Bolt
        Nut)");
    openBomRefusing("OccurrenceList::item", 1);
    EXPECT_EQ(column(kModelTable, 3), "Nut");
    EXPECT_EQ(uncaughtExceptions(), "");
}

}  // namespace
}  // namespace tarnix
