#include "tests/tarnix/bom/tabs/bom_tabs_test.h"

#include "host/session/input_actions.h"
#include "host/session/user_actions.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnix {
namespace {

class BomDialog : public BomTabsTest {};

TEST_F(BomDialog, HasThreeTabsASizeAndNamedButtons) {
    open("Bolt");
    openBom();
    EXPECT_EQ(tabs(), text(R"(
        QEMA_tab_models_BOM "Data of Model"
        QEMA_tab_structure_BOM "Structure"
        QEMA_tab_config_BOM "BOM Configuration")"));
    EXPECT_EQ(session->dialog()->okButtonText(), "Save Changes and Close");
    EXPECT_EQ(session->dialog()->cancelButtonText(), "Close");
    EXPECT_EQ(host::dialogSize(), (host::ui::DialogSize{800, 600}));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(BomDialog, OfAProductThatIsNoDesignHasNoTabsAndSaysNothing) {
    session->openForeignDocument();
    openBom();
    ASSERT_TRUE(session->dialogOpen());
    EXPECT_EQ(tabs(), "");
    EXPECT_EQ(session->dialog()->okButtonText(), "Save Changes and Close");
    EXPECT_EQ(session->dialog()->cancelButtonText(), "Close");
    EXPECT_EQ(host::dialogSize(), (host::ui::DialogSize{800, 600}));
    EXPECT_EQ(uncaughtExceptions(), "");
    EXPECT_TRUE(session->messages().empty());
}

TEST_F(BomDialog, ShowsTheNewDesignOnlyWhenItOpensAgain) {
    open(R"(
        Bolt
        Nut)");
    openBom();
    session->cancel();
    open("Washer");
    openBom();
    EXPECT_EQ(column(kModelTable, 3), "Washer");
}

TEST_F(BomDialog, GoesOnOfferingPropertiesThatWereOnceSeen) {
    open("Bolt  property=Colour/red");
    openBom();
    session->cancel();
    open("Nut  property=Size/M8");
    openBom();
    const adsk::core::Ptr<adsk::core::DropDownCommandInput> choice = session->input("iProperty_0");
    EXPECT_EQ(choice->listItems()->count(), 17U);
    EXPECT_EQ(choice->listItems()->item(15)->name(), "Colour");
    EXPECT_EQ(choice->listItems()->item(16)->name(), "Size");
}

TEST_F(BomDialog, OfADesignWithoutOccurrencesShowsHeadersAndOffersNoUserProperties) {
    open("");
    openBom();
    const adsk::core::Ptr<adsk::core::DropDownCommandInput> choice = session->input("iProperty_0");
    EXPECT_EQ(choice->listItems()->count(), 15U);
    EXPECT_EQ(rowCount(kModelTable), 1);
    showStructure();
    EXPECT_EQ(rowCount(kStructureTable), 1);
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(BomDialog, LeavesTheDesignAsItIs) {
    open(R"(
        Bolt  number=B-1 description=long
        Screw  number=B-1 description=short)");
    openBom();
    EXPECT_EQ(session->design().components.at(1).description, "long");
}

TEST_F(BomDialog, ThatCouldNotBeBuiltHasNeitherSizeNorTextsNorHandlers) {
    configure({"Mass;Mass"});
    open("Bolt");
    openBom();
    ASSERT_TRUE(session->dialogOpen());
    EXPECT_EQ(session->dialog()->okButtonText(), "OK");
    EXPECT_EQ(host::dialogSize(), host::ui::DialogSize{});
    EXPECT_EQ(uncaughtExceptions(),
              "std::out_of_range: invalid string position in OnCommandCreated");
    faults.forgetExceptions();
    session->click("QEMA_btnExportXls");
    EXPECT_EQ(uncaughtExceptions(), "");
    EXPECT_EQ(csv(), "");
}

}  // namespace
}  // namespace tarnix
