#include "tests/host/ui/host_test.h"

#include <string>
#include <vector>

namespace host {
namespace {

using namespace adsk::core;

/// A dialog:
///
///     top       text
///     tab       tab
///       inTab     text
///       group     group
///         deep      text
///       table     table of one cell, "cell", with the toolbar input "tool"
///     other     tab
///       inOther   text
class Inputs : public HostTest {
protected:
    Inputs() {
        all = openWith([](const Ptr<CommandInputs>& inputs) {
            inputs->addStringValueInput("top", "Top");
            const Ptr<CommandInputs> tab = inputs->addTabCommandInput("tab", "Tab")->children();
            tab->addStringValueInput("inTab", "In tab");
            tab->addGroupCommandInput("group", "Group")
                ->children()
                ->addStringValueInput("deep", "Deep");
            const Ptr<TableCommandInput> table =
                tab->addTableCommandInput("table", "Table", 1, "1");
            table->addCommandInput(table->commandInputs()->addStringValueInput("cell", ""), 0, 0);
            table->addToolbarCommandInput(tab->addBoolValueInput("tool", "Tool", false));
            inputs->addTabCommandInput("other", "Other")
                ->children()
                ->addStringValueInput("inOther", "In other");
        });
    }

    Ptr<CommandInputs> childrenOf(const std::string& tab) {
        const Ptr<TabCommandInput> found = all->itemById(tab);
        return found->children();
    }

    /// The ids of the parents of these inputs, with a space after each.
    std::string parentsOf(const std::vector<std::string>& ids) {
        std::string parents;
        for (const std::string& id : ids) {
            const Ptr<CommandInput> parent = all->itemById(id)->parentCommandInput();
            parents += (parent ? parent->id() : "none") + " ";
        }
        return parents;
    }

    Ptr<CommandInputs> all;
};

TEST_F(Inputs, TheCommandsCollectionFindsInputsAtAnyDepth) {
    EXPECT_EQ(all->itemById("top")->name(), "Top");
    EXPECT_EQ(all->itemById("deep")->name(), "Deep");
    EXPECT_TRUE(all->itemById("cell"));
    EXPECT_TRUE(all->itemById("inOther"));
    EXPECT_FALSE(all->itemById("nowhere"));
}

TEST_F(Inputs, ATabsCollectionFindsItsOwnAndItsGroupsButNotThoseOfOthers) {
    EXPECT_TRUE(childrenOf("tab")->itemById("inTab"));
    EXPECT_TRUE(childrenOf("tab")->itemById("deep"));
    EXPECT_FALSE(childrenOf("tab")->itemById("inOther"));
    EXPECT_FALSE(childrenOf("tab")->itemById("top"));
    EXPECT_FALSE(childrenOf("other")->itemById("table"));
}

TEST_F(Inputs, AreCountedAsOwnMembersInOrderOfCreationWithTheCells) {
    EXPECT_EQ(all->count(), 3U);
    EXPECT_EQ(childrenOf("tab")->count(), 5U);
    EXPECT_EQ(childrenOf("tab")->item(2)->id(), "table");
    EXPECT_EQ(childrenOf("tab")->item(3)->id(), "cell");
    EXPECT_FALSE(childrenOf("tab")->item(5));
}

TEST_F(Inputs, ACellBelongsToTheCollectionOfItsTable) {
    EXPECT_EQ(all->itemById("table")->commandInputs(), childrenOf("tab"));
    EXPECT_EQ(all->itemById("cell")->commandInputs(), childrenOf("tab"));
    EXPECT_EQ(all->itemById("tool")->commandInputs(), childrenOf("tab"));
    EXPECT_EQ(all->itemById("top")->commandInputs(), all);
}

TEST_F(Inputs, TheParentIsTheTableElseTheTabOrGroupElseNone) {
    EXPECT_EQ(parentsOf({"cell", "tool"}), "table table ");
    EXPECT_EQ(parentsOf({"table", "deep", "group"}), "tab group tab ");
    EXPECT_EQ(parentsOf({"top", "tab"}), "none none ");
}

TEST_F(Inputs, TheParentCommandIsTheCommandAtAnyDepth) {
    EXPECT_EQ(all->itemById("deep")->parentCommand(), openDialog());
    EXPECT_EQ(all->itemById("cell")->parentCommand(), openDialog());
    EXPECT_EQ(childrenOf("tab")->command(), openDialog());
}

TEST_F(Inputs, ATabWithAnIdInUseIsRefusedAndReported) {
    EXPECT_FALSE(all->addTabCommandInput("tab", "Again"));
    EXPECT_FALSE(all->addTabCommandInput("deep", "Again"));

    EXPECT_EQ(misuses(), (std::vector<Misuse>{
                             {"CommandInputs::addTabCommandInput", "the id \"tab\" is in use"},
                             {"CommandInputs::addTabCommandInput", "the id \"deep\" is in use"}}));
}

TEST_F(Inputs, ATabInsideATabIsRefused) {
    EXPECT_FALSE(childrenOf("tab")->addTabCommandInput("inner", "Inner"));
    EXPECT_EQ(misused(), "CommandInputs::addTabCommandInput");
}

TEST_F(Inputs, EverythingElseMayShareAnId) {
    EXPECT_TRUE(all->addStringValueInput("tab", ""));
    EXPECT_TRUE(all->addBoolValueInput("top", "", false));
    EXPECT_TRUE(childrenOf("other")->addStringValueInput("inTab", ""));
    EXPECT_TRUE(all->addStringValueInput("", ""));
    EXPECT_TRUE(all->addStringValueInput("", ""));
    EXPECT_EQ(misuses(), std::vector<Misuse>());
}

TEST_F(Inputs, OfSeveralWithOneIdTheFirstOwnOneIsFoundBeforeThoseInside) {
    childrenOf("tab")->addStringValueInput("same", "In tab");
    const Ptr<CommandInput> own = all->addStringValueInput("same", "Own");
    all->addStringValueInput("same", "Second own");

    EXPECT_EQ(all->itemById("same"), own);
    own->deleteMe();
    EXPECT_EQ(all->itemById("same")->name(), "Second own");
    all->itemById("same")->deleteMe();
    EXPECT_EQ(all->itemById("same")->name(), "In tab");
}

TEST_F(Inputs, IdsThatEndInNumbersAreToldApartByTheirTexts) {
    const std::vector<std::string> ids = {"",
                                          "0",
                                          "7",
                                          "c_",
                                          "c_0",
                                          "c_00",
                                          "c_7",
                                          "c_07",
                                          "c_70",
                                          "c_007",
                                          "c_123456789",
                                          "c_1234567890",
                                          "c_0123456789",
                                          "18446744073709551616"};
    std::vector<Ptr<CommandInput>> made;
    for (const std::string& id : ids) {
        made.emplace_back(all->addStringValueInput("x" + id, ""));
    }
    for (std::size_t index = 0; index < ids.size(); ++index) {
        EXPECT_EQ(made[index]->id(), "x" + ids[index]);
        EXPECT_EQ(all->itemById("x" + ids[index]), made[index]) << ids[index];
    }
    EXPECT_FALSE(all->itemById("xc_000"));
    EXPECT_FALSE(all->itemById("xc_8"));
    EXPECT_FALSE(all->itemById("unknown_7"));
}

TEST_F(Inputs, ADeletedOneLeavesItsCollectionAndItsTable) {
    const Ptr<TableCommandInput> table = all->itemById("table");
    const Ptr<CommandInput> cell = all->itemById("cell");

    EXPECT_TRUE(cell->deleteMe());

    EXPECT_FALSE(cell->isValid());
    EXPECT_FALSE(all->itemById("cell"));
    EXPECT_EQ(table->rowCount(), 0);
    EXPECT_EQ(childrenOf("tab")->count(), 4U);
    EXPECT_EQ(childrenOf("tab")->item(3)->id(), "tool");
}

TEST_F(Inputs, ADeletedTabDeletesItsChildren) {
    const Ptr<CommandInput> deep = all->itemById("deep");
    const Ptr<CommandInputs> children = childrenOf("tab");

    all->itemById("tab")->deleteMe();

    EXPECT_FALSE(deep->isValid());
    EXPECT_FALSE(children->isValid());
    EXPECT_FALSE(all->itemById("inTab"));
    EXPECT_TRUE(all->addTabCommandInput("tab", "Anew"));
}

TEST_F(Inputs, AnotherTabShowsWhenTheActiveOneIsDeleted) {
    const Ptr<TabCommandInput> other = all->itemById("other");
    const Ptr<TabCommandInput> tab = all->itemById("tab");
    other->activate();
    EXPECT_FALSE(tab->isActive());

    other->deleteMe();

    EXPECT_TRUE(tab->isActive());
}

TEST_F(Inputs, ADeletedTableLeavesItsCellsInTheirCollection) {
    const Ptr<CommandInput> cell = all->itemById("cell");

    all->itemById("table")->deleteMe();

    EXPECT_EQ(all->itemById("cell"), cell);
    EXPECT_EQ(parentsOf({"cell"}), "tab ");
}

TEST_F(Inputs, TheirObjectTypeIsTheirClass) {
    EXPECT_EQ(std::string(all->itemById("table")->objectType()), "adsk::core::TableCommandInput");
    EXPECT_EQ(all->itemById("tool")->objectType(), BoolValueCommandInput::classType());
}

TEST_F(Inputs, AHandleOfAnotherClassIsNull) {
    EXPECT_FALSE(Ptr<StringValueCommandInput>(all->itemById("tool")));
    EXPECT_TRUE(Ptr<BoolValueCommandInput>(all->itemById("tool")));
    EXPECT_FALSE(all->itemById("tool")->cast<TabCommandInput>());
}

TEST_F(Inputs, FieldsKeepWhatTheyWereMadeWith) {
    const Ptr<StringValueCommandInput> text = all->addStringValueInput("a", "A", "value");
    const Ptr<BoolValueCommandInput> button =
        all->addBoolValueInput("b", "B", false, "././Resources/BOM/Part", true);
    const Ptr<ImageCommandInput> image = all->addImageCommandInput("c", "C", "././Asm.png");

    EXPECT_EQ(text->value(), "value");
    EXPECT_FALSE(text->isReadOnly());
    EXPECT_FALSE(button->isCheckBox());
    EXPECT_TRUE(button->value());
    EXPECT_EQ(button->resourceFolder(), "././Resources/BOM/Part");
    EXPECT_EQ(image->imageFile(), "././Asm.png");
}

TEST_F(Inputs, FieldsReadBackWhatTheyAreSetTo) {
    const Ptr<StringValueCommandInput> text = all->addStringValueInput("a", "A", "value");
    const Ptr<BoolValueCommandInput> button = all->addBoolValueInput("b", "B", false);
    const Ptr<ImageCommandInput> image = all->addImageCommandInput("c", "C", "x.png");

    EXPECT_TRUE(text->value("other") && text->isReadOnly(true));
    EXPECT_TRUE(button->value(true) && button->resourceFolder("./Icon") && button->text("T"));
    EXPECT_TRUE(image->imageFile("y.png") && image->tooltip("tip"));

    EXPECT_EQ(text->value(), "other");
    EXPECT_TRUE(text->isReadOnly());
    EXPECT_EQ(button->resourceFolder(), "./Icon");
    EXPECT_EQ(button->text(), "T");
    EXPECT_EQ(image->imageFile(), "y.png");
    EXPECT_EQ(image->tooltip(), "tip");
}

}  // namespace
}  // namespace host
