#include "tests/host/ui/host_test.h"

namespace host {
namespace {

using namespace adsk::core;

/// A dialog with an active tab that holds a group and a table, and another tab.
class Reachability : public HostTest {
protected:
    Reachability() {
        all = openWith([](const Ptr<CommandInputs>& inputs) {
            const Ptr<CommandInputs> tab = inputs->addTabCommandInput("tab", "")->children();
            tab->addStringValueInput("text", "", "kept");
            tab->addGroupCommandInput("group", "")->children()->addBoolValueInput("in", "", false);
            const Ptr<TableCommandInput> table = tab->addTableCommandInput("table", "", 1, "1:0");
            table->addCommandInput(tab->addStringValueInput("cell", ""), 0, 0);
            table->addCommandInput(tab->addStringValueInput("narrow", ""), 0, 1);
            inputs->addTabCommandInput("other", "")->children()->addStringValueInput("far", "");
        });
    }

    Ptr<CommandInputs> all;
};

TEST_F(Reachability, IsTheInputsOwnFlagWhateverHidesItFromView) {
    EXPECT_TRUE(all->itemById("far")->isVisible());
    EXPECT_TRUE(all->itemById("narrow")->isVisible());
    all->itemById("tab")->isVisible(false);

    EXPECT_TRUE(all->itemById("text")->isVisible());
    EXPECT_FALSE(all->itemById("tab")->isVisible());
}

TEST_F(Reachability, HiddenAndDisabledInputsKeepTheirValues) {
    all->itemById("text")->isVisible(false);
    all->itemById("text")->isEnabled(false);

    EXPECT_EQ(Ptr<StringValueCommandInput>(all->itemById("text"))->value(), "kept");
    EXPECT_FALSE(all->itemById("text")->isEnabled());
}

TEST_F(Reachability, FullWidthCanBeSetOnTabsAndGroupsToo) {
    EXPECT_FALSE(all->itemById("text")->isFullWidth());

    EXPECT_TRUE(all->itemById("tab")->isFullWidth(true));
    EXPECT_TRUE(all->itemById("group")->isFullWidth(true));
    EXPECT_TRUE(all->itemById("text")->isFullWidth(true));

    EXPECT_TRUE(all->itemById("text")->isFullWidth());
}

TEST_F(Reachability, AHiddenInputCannotBeUsed) {
    all->itemById("text")->isVisible(false);

    EXPECT_EQ(misuseOf([this] { typeText(all->itemById("text"), "x"); }),
              "cannot type into \"text\": it is not visible");
}

TEST_F(Reachability, ADisabledInputCannotBeUsed) {
    all->itemById("text")->isEnabled(false);

    EXPECT_EQ(misuseOf([this] { pasteText(all->itemById("text"), "x"); }),
              "cannot type into \"text\": it is not enabled");
}

TEST_F(Reachability, AReadOnlyTextCannotBeTypedInto) {
    Ptr<StringValueCommandInput>(all->itemById("text"))->isReadOnly(true);

    EXPECT_EQ(misuseOf([this] { typeText(all->itemById("text"), "x"); }),
              "cannot type into \"text\": it is read-only");
}

TEST_F(Reachability, AnInputOfAnotherTabCannotBeUsed) {
    EXPECT_EQ(misuseOf([this] { typeText(all->itemById("far"), "x"); }),
              "cannot type into \"far\": its tab \"other\" is not active: activate it first");

    activateTab(all->itemById("other"));
    EXPECT_EQ(misuseOf([this] { typeText(all->itemById("far"), "x"); }), "");
    EXPECT_EQ(misuseOf([this] { click(all->itemById("cell")); }),
              "cannot click \"cell\": its tab \"tab\" is not active: activate it first");
}

TEST_F(Reachability, AnInputInACollapsedGroupCannotBeUsedUntilItIsExpanded) {
    const Ptr<GroupCommandInput> group = all->itemById("group");
    group->isExpanded(false);
    EXPECT_EQ(misuseOf([this] { click(all->itemById("in")); }),
              "cannot click \"in\": its group \"group\" is collapsed: click it first");

    click(group);

    EXPECT_TRUE(group->isExpanded());
    EXPECT_EQ(misuseOf([this] { click(all->itemById("in")); }), "");
}

// GroupCommandInput_isExpanded: a group within a group has to have a check box to be collapsed.
TEST_F(Reachability, AGroupInAGroupCollapsesOnlyWithACheckBox) {
    const Ptr<GroupCommandInput> group = all->itemById("group");
    const Ptr<GroupCommandInput> inner = group->children()->addGroupCommandInput("inner", "");

    EXPECT_FALSE(inner->isExpanded(false));
    EXPECT_EQ(misuseOf([&] { click(inner); }),
              "cannot click \"inner\": a group within a group without a check box cannot be "
              "collapsed");
    EXPECT_TRUE(inner->isExpanded());

    inner->isEnabledCheckBoxDisplayed(true);
    EXPECT_TRUE(inner->isExpanded(false));
    EXPECT_FALSE(inner->isExpanded());
}

TEST_F(Reachability, ACellInAColumnWithoutAWidthCannotBeUsed) {
    EXPECT_EQ(misuseOf([this] { click(all->itemById("narrow")); }),
              "cannot click \"narrow\": its column 1 of the table \"table\" has no width");
}

TEST_F(Reachability, ACellOfAHiddenTableCannotBeUsed) {
    all->itemById("table")->isVisible(false);

    EXPECT_EQ(misuseOf([this] { click(all->itemById("cell")); }),
              "cannot click \"cell\": \"table\" is not visible");
}

TEST_F(Reachability, ADeletedInputCannotBeUsed) {
    const Ptr<CommandInput> text = all->itemById("text");
    text->deleteMe();

    EXPECT_EQ(misuseOf([&] { click(text); }),
              "cannot click \"text\": it is not part of the open dialog");
    EXPECT_EQ(misuseOf([&] { click(nullptr); }), "cannot click: no such input");
}

TEST_F(Reachability, OnlyTextInputsCanBeTypedIntoAndOnlyListsChosenFrom) {
    EXPECT_EQ(misuseOf([this] { typeText(all->itemById("in"), "x"); }),
              "cannot type into \"in\": it holds no text");
    EXPECT_EQ(misuseOf([this] { chooseItem(all->itemById("text"), 0); }),
              "cannot choose from \"text\": it has no items");
}

TEST_F(Reachability, AHiddenTabCannotBeShown) {
    all->itemById("other")->isVisible(false);

    EXPECT_EQ(misuseOf([this] { activateTab(all->itemById("other")); }),
              "cannot show \"other\": it is not visible");
}

}  // namespace
}  // namespace host
