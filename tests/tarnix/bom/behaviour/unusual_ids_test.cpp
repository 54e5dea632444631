#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"

#include "host/session/input_actions.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

/// Cells whose ids end in no row's number: the dialog makes none, but what happens is laid down.
namespace test_support {
namespace {

using namespace adsk::core;

/// The dialog over two parts and the columns that no settings name.
class UnusualIds : public BomDialogTest {
protected:
    void SetUp() override {
        BomDialogTest::SetUp();
        open(R"(
            Bolt  number=B-1
            Plate  number=P-1)");
    }

    /// A button among the inputs of a tab, beside its table.
    [[nodiscard]] Ptr<CommandInput> addButton(const char* tabId, const std::string& id) const {
        const Ptr<TabCommandInput> tab = session->dialog()->commandInputs()->itemById(tabId);
        return tab->children()->addBoolValueInput(id, "", false);
    }
};

/// The tail of an id, and what reading it as a number throws.
using Tail = std::tuple<const char*, const char*>;

class UnusualTails : public UnusualIds, public testing::WithParamInterface<Tail> {
protected:
    [[nodiscard]] static std::string tail() { return std::get<0>(GetParam()); }
    [[nodiscard]] static std::string thrown() { return std::get<1>(GetParam()); }
};

TEST_P(UnusualTails, ThrowWhenFolding) {
    showModel();
    const std::string before = shownTable();

    host::reportChange(addButton(kModelTab, "modelColapseRow_" + tail()));

    EXPECT_EQ(uncaughtExceptions(), thrown() + " in OnInputChanged of modelColapseRow_" + tail());
    EXPECT_EQ(shownTable(), before);
}

TEST_P(UnusualTails, EndTheWriteBackAfterTheRowsAbove) {
    showModel();
    session->paste("modelPartNumberOcc_1", "B-2");
    session->paste("modelPartNumberOcc_2", "P-2");
    const Ptr<TableCommandInput> rows = session->table(kModelTable);
    rows->addCommandInput(addButton(kModelTab, "modelColapseRow_" + tail()), 2, 0);

    session->ok();

    EXPECT_EQ(uncaughtExceptions(), thrown() + " in OnExecute");
    EXPECT_EQ(component(0)->partNumber(), "B-2");
    EXPECT_EQ(component(1)->partNumber(), "P-1");
}

INSTANTIATE_TEST_SUITE_P(Each, UnusualTails,
                         testing::Values(Tail("x", "std::invalid_argument: invalid stoi argument"),
                                         Tail("", "std::invalid_argument: invalid stoi argument"),
                                         Tail("2147483648",
                                              "std::out_of_range: stoi argument out of range")));

class TailsBeyondTheRows : public UnusualIds, public testing::WithParamInterface<const char*> {};

TEST_P(TailsBeyondTheRows, EndTheWriteBackAfterTheRowsAbove) {
    showModel();
    session->paste("modelPartNumberOcc_1", "B-2");
    const Ptr<TableCommandInput> rows = session->table(kModelTable);
    rows->addCommandInput(addButton(kModelTab, std::string("modelColapseRow_") + GetParam()), 2, 0);

    session->ok();

    EXPECT_EQ(uncaughtExceptions(), "std::out_of_range: invalid vector subscript in OnExecute");
    EXPECT_EQ(component(0)->partNumber(), "B-2");
    EXPECT_EQ(component(1)->partNumber(), "P-1");
}

INSTANTIATE_TEST_SUITE_P(Each, TailsBeyondTheRows, testing::Values("0", "3"));

TEST_F(UnusualIds, BeyondTheRowsOfTheModelTabSelectNothing) {
    showModel();
    select(1);

    host::reportChange(addButton(kModelTab, "modelPartNumberOcc_3"));

    EXPECT_EQ(uncaughtExceptions(),
              "std::out_of_range: invalid vector subscript in OnInputChanged of "
              "modelPartNumberOcc_3");
    EXPECT_EQ(selected(), "Plate:1");
}

TEST_F(UnusualIds, BeyondTheRowsOfTheStructureTabDropTheSelection) {
    showStructure();
    select(1);

    host::reportChange(addButton(kStructureTab, "partNumberOcc_3"));

    EXPECT_EQ(uncaughtExceptions(),
              "std::out_of_range: invalid vector subscript in OnInputChanged of partNumberOcc_3");
    // The selection is cleared before the row is looked up there.
    EXPECT_EQ(selected(), "");
}

}  // namespace
}  // namespace test_support
