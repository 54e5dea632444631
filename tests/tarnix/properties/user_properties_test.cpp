#include "tests/support/case_name.h"
#include "tests/support/files.h"
#include "tests/support/held_files.h"
#include "tests/tarnix/properties/properties_fixture.h"

#include "host/session/input_actions.h"

namespace tarnix {
namespace {

using namespace adsk::core;

class UserProperties : public PropertiesTest {
protected:
    [[nodiscard]] int messageRows() const {
        const Ptr<TextBoxCommandInput> box = session->input(kMessage);
        return box->numRows();
    }

    /// Pastes a name into the only row, and returns whether it can be saved.
    bool accepts(const std::string& name) {
        host::pasteText(session->table(kTable)->getInputAtPosition(0, 0), name);
        EXPECT_EQ(box(kMessage), isEnabled(kSave) ? kNotice : kIncorrect);
        return isEnabled(kSave);
    }

    /// All single bytes that a name may have, in ascending order.
    std::string acceptedBytes() {
        std::string all;
        for (int byte = 0; byte < 256; ++byte) {
            const std::string name(1, static_cast<char>(byte));
            all += accepts(name) ? name : "";
        }
        return all;
    }

    [[nodiscard]] std::string settings() const { return test_support::readFile(settingsFile()); }
};

TEST_F(UserProperties, MayHaveLettersDigitsSpaceHyphenAndUnderscoreAlone) {
    offer({"QEMA_Colour;Colour"});
    showList();
    EXPECT_EQ(acceptedBytes(), " -0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ_abcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(UserProperties, MayNotHavePointsSlashesOrAccents) {
    offer({"QEMA_Colour;Colour"});
    showList();
    EXPECT_FALSE(accepts("a.b"));
    EXPECT_FALSE(accepts("a/b"));
    EXPECT_FALSE(accepts("f\xC3\xA4rbe"));                      // Latin
    EXPECT_FALSE(accepts("\xD1\x86\xD0\xB2\xD0\xB5\xD1\x82"));  // Cyrillic
    EXPECT_FALSE(accepts("\xE8\x89\xB2"));                      // Chinese
    EXPECT_FALSE(accepts("\xF0\x9F\x8E\xA8"));                  // beyond the first plane
    EXPECT_FALSE(accepts("a\xCC\x88"));                         // a letter and a combining accent
    EXPECT_TRUE(accepts("Surface finish_2-B"));
}

TEST_F(UserProperties, WithAValidNameCanBeSaved) {
    showList();
    session->click(kAddRow);
    nameRow(0, "a");
    EXPECT_TRUE(isEnabled(kSave));
}

/// What is typed for a new property one after the other, and whether the last can be saved.
struct TypedNames {
    const char* name;
    std::vector<std::string> typed;
    bool isSavable;
};

class UserPropertyTyped : public UserProperties, public testing::WithParamInterface<TypedNames> {};

TEST_P(UserPropertyTyped, CanBeSavedWhereTheLastIsValid) {
    showList();
    session->click(kAddRow);
    for (const std::string& name : GetParam().typed) {
        nameRow(0, name);
    }
    EXPECT_EQ(isEnabled(kSave), GetParam().isSavable);
    EXPECT_EQ(box(kMessage), GetParam().isSavable ? kNotice : kIncorrect);
    EXPECT_EQ(messageRows(), 5);
}

INSTANTIATE_TEST_SUITE_P(
    Names, UserPropertyTyped,
    testing::Values(
        TypedNames{.name = "WithAFullStopFromThereOn", .typed = {"a", "a."}, .isSavable = false},
        TypedNames{.name = "ValidAgain", .typed = {"a.", "ab"}, .isSavable = true},
        TypedNames{.name = "EmptiedAfterAnInvalidOne", .typed = {".", ""}, .isSavable = false}),
    test_support::caseName);

TEST_F(UserProperties, AreAddedAsEmptyRowsWithIdsThatNeverRepeat) {
    showList();
    session->click(kAddRow);
    session->click(kAddRow);
    EXPECT_EQ(rows(), "|||");
    EXPECT_EQ(rowId(0), "QEMA_UserProperty_15095");
    EXPECT_EQ(session->table(kTable)->getInputAtPosition(0, 0)->name(), "UserProperty_15095");
    EXPECT_EQ(rowId(1), "QEMA_UserProperty_15096");
    session->cancel();
    showList();
    session->click(kAddRow);
    EXPECT_EQ(rowId(0), "QEMA_UserProperty_15097");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(UserProperties, AreAddedAfterTheOthers) {
    offer({"QEMA_Colour;Colour"});
    showList();
    session->click(kAddRow);
    nameRow(1, "Size");
    EXPECT_EQ(rows(), "|Colour|Size|");
}

TEST_F(UserProperties, AreNotDeletedWithoutASelectedRow) {
    offer({"QEMA_Colour;Colour"});
    showList();
    session->click(kDeleteRow);
    ASSERT_EQ(session->messages().size(), 1U);
    EXPECT_EQ(session->messages()[0].text, "Select one property to delete.");
    EXPECT_EQ(session->messages()[0].title, "");
    EXPECT_EQ(rows(), "|Colour|");
}

TEST_F(UserProperties, StayWhereTheHostReturnsNoTable) {
    offer({"QEMA_Colour;Colour"});
    showList();
    host::gate::refuse("CommandInputs::itemById", 1);
    session->click(kAddRow);
    host::gate::refuse("CommandInputs::itemById", 1);
    session->click(kDeleteRow);
    EXPECT_EQ(rows(), "|Colour|");
    EXPECT_TRUE(session->messages().empty());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(UserProperties, AreNotCheckedWithoutTheBoxForTheMessage) {
    offer({"QEMA_Colour;Colour"});
    showList();
    host::gate::refuse("CommandInputs::itemById", 1);
    EXPECT_TRUE(accepts("a.b"));
    EXPECT_EQ(host::gate::refusedCall(), "CommandInputs::itemById");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(UserProperties, AreNotCheckedInACellThatIsNotALineOfText) {
    showList();
    const Ptr<TableCommandInput> table = session->table(kTable);
    table->addCommandInput(table->commandInputs()->addBoolValueInput("odd", "Odd", true), 0, 0);
    session->click("odd");
    EXPECT_EQ(box(kMessage), kNotice);
    EXPECT_TRUE(isEnabled(kSave));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(UserProperties, AreAddedInOneCellThatSpansNoOther) {
    offer({"QEMA_Colour;Colour"});
    showList();
    session->click(kAddRow);
    EXPECT_EQ(placeOfCell(1), "row 1, column 0, spans 0 and 0");
}

TEST_F(UserProperties, AreDeletedByTheirSelectedRow) {
    offer({"QEMA_Colour;Colour", "QEMA_Size;Size", "QEMA_Norm;Norm"});
    showList();
    session->selectRow(kTable, 1);
    session->click(kDeleteRow);
    EXPECT_EQ(rows(), "|Colour|Norm|");
    EXPECT_TRUE(session->messages().empty());
}

TEST_F(UserProperties, AreSavedAsKeyAndNameInTheOrderOfTheRows) {
    offer({"QEMA_Colour;Farbe"});
    showList();
    session->click(kAddRow);
    nameRow(1, "Surface finish");
    session->click(kSave);
    EXPECT_EQ(savedList(),
              "<item_iProperty id=\"QEMA_Farbe\"><displayName>Farbe</displayName></item_iProperty>"
              "<item_iProperty id=\"QEMA_Surface finish\"><displayName>Surface finish"
              "</displayName></item_iProperty>");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(UserProperties, AreSavedIntoTheDefaultSettings) {
    showList();
    session->click(kAddRow);
    nameRow(0, "Size");
    session->click(kSave);
    const std::string bytes = settings();
    EXPECT_EQ(bytes.substr(bytes.find("<configuration"),
                           bytes.find("</configuration>") - bytes.find("<configuration")),
              "<configuration nameOfApplication=\"Tarnix\"><category name=\"httpHelpdesk\">"
              "<www>http://helpdesk.tarnix.example/</www></category><category name=\"iProperty\">"
              "<item_iProperty id=\"QEMA_Size\"><displayName>Size</displayName></item_iProperty>"
              "</category><category name=\"bomItems\"/>");
}

TEST_F(UserProperties, LeftEmptyAreNotSaved) {
    showList();
    session->click(kAddRow);
    session->click(kAddRow);
    nameRow(1, "Size");
    session->click(kSave);
    EXPECT_EQ(savedList(),
              "<item_iProperty id=\"QEMA_Size\"><displayName>Size</displayName></item_iProperty>");
}

TEST_F(UserProperties, SavedWithAnEmptyTableAreNone) {
    offer({"QEMA_Colour;Colour"});
    showList();
    session->selectRow(kTable, 0);
    session->click(kDeleteRow);
    session->click(kSave);
    EXPECT_EQ(savedList(), "");
    session->cancel();
    openProperties();
    EXPECT_EQ(inputsOf("QEMA_customProperties"), "");
    EXPECT_EQ(rows(), "|");
}

TEST_F(UserProperties, ShowInTheDialogWhenItOpensAgain) {
    showList();
    session->click(kAddRow);
    nameRow(0, "Size");
    session->click(kSave);
    EXPECT_EQ(inputsOf("QEMA_customProperties"), "");
    session->cancel();
    openProperties();
    EXPECT_EQ(inputsOf("QEMA_customProperties"), R"(text QEMA_Size "Size" "")");
}

TEST_F(UserProperties, AreNotSavedWhereTheSettingsHaveNoCategoryForThem) {
    test_support::writeFile(settingsFile(), settingsWith(category("bomItems", {"QEMA_Mass;M"})));
    showList();
    session->click(kAddRow);
    nameRow(0, "Size");
    session->click(kSave);
    EXPECT_EQ(savedList(), "none");
    EXPECT_NE(settings().find("<item_bomItems id=\"QEMA_Mass\">"), std::string::npos);
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(UserProperties, LeaveTheOtherCategoriesAsTheyAre) {
    const std::string others = category("mine", {"a;b"}) + category("bomItems", {"QEMA_Mass;M"});
    test_support::writeFile(settingsFile(), settingsWith(others + category("iProperty", {})));
    showList();
    session->click(kSave);
    EXPECT_NE(settings().find(others), std::string::npos);
}

TEST_F(UserProperties, ThrowForACellThatIsNotALineOfText) {
    offer({"QEMA_Colour;Colour"});
    showList();
    const std::string before = settings();
    const Ptr<TableCommandInput> table = session->table(kTable);
    table->addCommandInput(table->commandInputs()->addBoolValueInput("odd", "Odd", true), 1, 0);
    session->click(kSave);
    EXPECT_EQ(uncaughtExceptions(),
              "std::exception:  in OnInputChanged of QEMA_btnSaveUserIProperty");
    EXPECT_EQ(settings(), before);
}

TEST_F(UserProperties, AreNotReadWhereTheSettingsHaveNoCategoryForThem) {
    test_support::writeFile(settingsFile(), settingsWith(""));
    showList();
    const Ptr<TableCommandInput> table = session->table(kTable);
    table->addCommandInput(table->commandInputs()->addBoolValueInput("odd", "Odd", true), 0, 0);
    session->click(kSave);
    EXPECT_EQ(uncaughtExceptions(), "");
    EXPECT_EQ(savedList(), "none");
}

TEST_F(UserProperties, StayOnTheDiskWhenTheSettingsAreNotXml) {
    showList();
    test_support::writeFile(settingsFile(), "<configuration");
    session->click(kSave);
    EXPECT_EQ(uncaughtExceptions(), "_com_error:  in OnInputChanged of QEMA_btnSaveUserIProperty");
    EXPECT_EQ(settings(), "<configuration");
    EXPECT_TRUE(session->dialogOpen());
}

TEST_F(UserProperties, StayOnTheDiskWhenTheSettingsCannotBeWritten) {
    offer({"QEMA_Colour;Colour"});
    showList();
    nameRow(0, "Size");
    const std::string before = settings();
    {
        const auto unwritable = test_support::holdUnwritable(settingsFile());
        session->click(kSave);
    }
    EXPECT_EQ(uncaughtExceptions(), "_com_error:  in OnInputChanged of QEMA_btnSaveUserIProperty");
    EXPECT_EQ(settings(), before);
    EXPECT_TRUE(session->dialogOpen());
    session->click(kSave);
    EXPECT_NE(savedList().find("QEMA_Size"), std::string::npos);
}

TEST_F(UserProperties, AreSavedAndStayWhenTheDialogIsCancelled) {
    showList();
    session->click(kAddRow);
    nameRow(0, "Size");
    session->click(kSave);
    session->cancel();
    EXPECT_NE(savedList().find("QEMA_Size"), std::string::npos);
}

}  // namespace
}  // namespace tarnix
