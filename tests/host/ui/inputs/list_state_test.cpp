#include "tests/host/ui/host_test.h"

#include "host/base/last_error.h"

namespace host {
namespace {

using namespace adsk::core;

class Lists : public HostTest {
protected:
    Lists() {
        all = openWith(
            [](const Ptr<CommandInputs>& inputs) { inputs->addBoolValueInput("any", "", false); });
        one = add(TextListDropDownStyle);
    }

    Ptr<DropDownCommandInput> add(DropDownStyles style) {
        Ptr<DropDownCommandInput> list = all->addDropDownCommandInput("list", "", style);
        for (const char* name : {"Produce", "Buy", "AsPart"}) {
            list->listItems()->add(name, false);
        }
        return list;
    }

    /// The items as "Name" or "Name*" where selected.
    static std::string text(const Ptr<ListItems>& items) {
        std::string all;
        for (std::size_t i = 0; i < items->count(); ++i) {
            const Ptr<ListItem> item = items->item(i);
            all += (i == 0 ? "" : " ") + item->name() + (item->isSelected() ? "*" : "");
        }
        return all;
    }

    Ptr<CommandInputs> all;
    Ptr<DropDownCommandInput> one;
};

TEST_F(Lists, HaveNothingSelectedAtFirst) {
    EXPECT_FALSE(one->selectedItem());
    EXPECT_EQ(text(one->listItems()), "Produce Buy AsPart");
}

TEST_F(Lists, SelectingOneItemUnselectsTheOther) {
    one->listItems()->item(0)->isSelected(true);
    one->listItems()->item(2)->isSelected(true);

    EXPECT_EQ(text(one->listItems()), "Produce Buy AsPart*");
    EXPECT_EQ(one->selectedItem()->name(), "AsPart");
}

TEST_F(Lists, AddingASelectedItemUnselectsTheOther) {
    one->listItems()->item(0)->isSelected(true);

    one->listItems()->add("Divided", true);

    EXPECT_EQ(text(one->listItems()), "Produce Buy AsPart Divided*");
}

TEST_F(Lists, CheckBoxListsSelectItemsIndependently) {
    const Ptr<DropDownCommandInput> several = add(CheckBoxDropDownStyle);
    several->listItems()->item(0)->isSelected(true);
    several->listItems()->item(2)->isSelected(true);

    EXPECT_EQ(text(several->listItems()), "Produce* Buy AsPart*");
    EXPECT_EQ(several->selectedItem()->name(), "Produce");
}

TEST_F(Lists, MultiSelectButtonRowsSelectItemsIndependently) {
    const Ptr<ButtonRowCommandInput> row = all->addButtonRowCommandInput("row", "", true);
    row->listItems()->add("A", true, "./A");
    row->listItems()->add("B", true, "./B");

    EXPECT_EQ(text(row->listItems()), "A* B*");
    EXPECT_TRUE(row->isMultiSelectEnabled());
    EXPECT_EQ(row->listItems()->item(1)->icon(), "./B");
}

TEST_F(Lists, SingleSelectButtonRowsAndRadioGroupsHaveOneSelectedItem) {
    const Ptr<ButtonRowCommandInput> row = all->addButtonRowCommandInput("row", "", false);
    const Ptr<RadioButtonGroupCommandInput> radio = all->addRadioButtonGroupCommandInput("radio");
    EXPECT_FALSE(radio->selectedItem());
    for (const Ptr<ListItems>& items : {row->listItems(), radio->listItems()}) {
        items->add("A", true);
        items->add("B", true);
    }

    EXPECT_EQ(text(row->listItems()), "A B*");
    EXPECT_EQ(text(radio->listItems()), "A B*");
    EXPECT_EQ(radio->selectedItem()->index(), 1);
}

TEST_F(Lists, ItemsOfAButtonRowHaveTheirNames) {
    const Ptr<ButtonRowCommandInput> row = all->addButtonRowCommandInput("row", "", true);

    EXPECT_EQ(row->listItems()->add("Produce", false, "./Icon")->name(), "Produce");
}

TEST_F(Lists, UnselectingTheSelectedItemLeavesNone) {
    one->listItems()->item(1)->isSelected(true);

    one->listItems()->item(1)->isSelected(false);

    EXPECT_FALSE(one->selectedItem());
}

TEST_F(Lists, UnselectingAnotherItemLeavesTheSelectedOne) {
    one->listItems()->item(1)->isSelected(true);

    one->listItems()->item(0)->isSelected(false);

    EXPECT_EQ(one->selectedItem()->name(), "Buy");
}

TEST_F(Lists, ClearEmptiesTheList) {
    one->listItems()->item(1)->isSelected(true);
    const Ptr<ListItem> item = one->listItems()->item(0);

    EXPECT_TRUE(one->listItems()->clear());

    EXPECT_EQ(one->listItems()->count(), 0U);
    EXPECT_FALSE(one->selectedItem());
    EXPECT_FALSE(item->isValid());
    EXPECT_EQ(item->name(), "");
    EXPECT_EQ(misused(), "ListItem::name");
}

TEST_F(Lists, ItemsCanBeAddedBeforeOthers) {
    const Ptr<ListItem> buy = one->listItems()->item(1);
    buy->isSelected(true);

    one->listItems()->add("First", false, "", 0);

    EXPECT_EQ(text(one->listItems()), "First Produce Buy* AsPart");
    EXPECT_EQ(buy->index(), 2);
    EXPECT_EQ(one->selectedItem(), buy);
}

TEST_F(Lists, TheSelectedItemOfADropDownCannotBeDeleted) {
    one->listItems()->item(1)->isSelected(true);

    EXPECT_FALSE(one->listItems()->item(1)->deleteMe());
    EXPECT_TRUE(one->listItems()->item(0)->deleteMe());

    EXPECT_EQ(text(one->listItems()), "Buy* AsPart");
    EXPECT_EQ(one->selectedItem()->index(), 0);
}

TEST_F(Lists, ReturnOneObjectForOneItem) {
    const Ptr<ListItem> item = one->listItems()->item(1);

    EXPECT_EQ(one->listItems()->item(1), item);
    EXPECT_EQ(one->listItems(), one->listItems());
    EXPECT_FALSE(one->listItems()->item(3));
}

TEST_F(Lists, ItemsOfADeletedListAreNotValid) {
    const Ptr<ListItems> items = one->listItems();
    const Ptr<ListItem> item = items->item(0);

    one->deleteMe();

    EXPECT_FALSE(items->isValid());
    EXPECT_FALSE(item->isSelected(true));
    EXPECT_EQ(items->count(), 0U);
    EXPECT_EQ(lastError().code, static_cast<int>(UnderlyingObjectDeletedError));
    EXPECT_EQ(misused(), "ListItem::isSelected ListItems::count");
}

TEST_F(Lists, OnlyAnItemOfTheListCanBeChosen) {
    EXPECT_EQ(misuseOf([this] { chooseItem(one, "Sell"); }),
              "cannot choose \"Sell\" from \"list\": it has \"Produce\", \"Buy\", \"AsPart\"");
    EXPECT_EQ(misuseOf([this] { chooseItem(one, 3); }),
              "cannot choose item 3 from \"list\": it has \"Produce\", \"Buy\", \"AsPart\"");
}

TEST_F(Lists, ChoosingASelectedCheckBoxItemUnselectsIt) {
    const Ptr<DropDownCommandInput> several = add(CheckBoxDropDownStyle);

    chooseItem(several, "Buy");
    EXPECT_EQ(text(several->listItems()), "Produce Buy* AsPart");

    chooseItem(several, "Buy");
    EXPECT_EQ(text(several->listItems()), "Produce Buy AsPart");
}

}  // namespace
}  // namespace host
