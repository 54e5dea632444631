#include "tests/support/addin_test.h"
#include "tests/support/case_name.h"
#include "tests/support/files.h"
#include "tests/support/held_files.h"

#include "host/session/user_actions.h"

namespace tarnix {
namespace {

using namespace adsk::core;

constexpr const char* kChoice = "choiceProvider";
constexpr const char* kAddress = "helpdeskOther";
constexpr const char* kDefaultCaption = "Set Ostrel Works as your support provider";
constexpr const char* kOtherCaption = "Set other support provider";
constexpr const char* kDefaultUrl = "http://helpdesk.tarnix.example/";

class Configuration : public test_support::AddinTest {
protected:
    void openConfiguration() { session->press("QM_TX_configuration"); }

    /// Stores an address, given as it is in XML.
    void store(const std::string& url) {
        test_support::writeFile(settingsFile(), document("<www>" + url + "</www>"));
    }

    static std::string document(const std::string& inCategory) {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
               "<configuration nameOfApplication=\"Tarnix\"><category name=\"httpHelpdesk\">" +
               inCategory + "</category></configuration>\r\n";
    }

    /// What the element for the address holds in the settings; "none" where there is none.
    [[nodiscard]] std::string stored() const {
        const std::string bytes = test_support::readFile(settingsFile());
        const std::size_t from = bytes.find("<www>");
        if (from == std::string::npos) {
            return bytes.find("<www/>") != std::string::npos ? "" : "none";
        }
        const std::size_t start = from + 5;
        return bytes.substr(start, bytes.find("</www>") - start);
    }

    /// The chosen provider's place, and what the box shows: "1 http://..." or "0 hidden".
    [[nodiscard]] std::string shown() const {
        const Ptr<RadioButtonGroupCommandInput> choice = session->input(kChoice);
        const Ptr<TextBoxCommandInput> address = session->input(kAddress);
        return std::to_string(choice->selectedItem()->index()) + " " +
               (address->isVisible() ? address->text() : "hidden");
    }
};

TEST_F(Configuration, HasTheChoiceTheDescriptionAndTheAddress) {
    openConfiguration();
    const Ptr<CommandInputs> inputs = session->dialog()->commandInputs();
    ASSERT_EQ(inputs->count(), 3U);
    const Ptr<RadioButtonGroupCommandInput> choice = inputs->item(0);
    EXPECT_EQ(choice->id(), "choiceProvider");
    EXPECT_EQ(choice->name(), "Select your support provider");
    EXPECT_TRUE(choice->isFullWidth());
    ASSERT_EQ(choice->listItems()->count(), 2U);
    EXPECT_EQ(choice->listItems()->item(0)->name(), kDefaultCaption);
    EXPECT_EQ(choice->listItems()->item(1)->name(), kOtherCaption);
    EXPECT_EQ(choice->listItems()->item(0)->icon(), "");
    EXPECT_EQ(choice->listItems()->item(1)->icon(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(Configuration, DescribesTheAddressInABoxThatIsAlwaysVisible) {
    openConfiguration();
    const Ptr<TextBoxCommandInput> box = session->dialog()->commandInputs()->item(1);
    EXPECT_EQ(box->id(), "helpdeskOtherDecription");
    EXPECT_EQ(box->name(), "");
    EXPECT_EQ(box->text(),
              "Enter the URL of your support provider e.g. http://www.autodesk.com/support");
    EXPECT_EQ(box->numRows(), 2);
    EXPECT_TRUE(box->isReadOnly());
    EXPECT_TRUE(box->isVisible());
}

TEST_F(Configuration, ShowsTheDescriptionWhicheverProviderIsChosen) {
    store("https://help.example/desk");
    openConfiguration();
    const Ptr<TextBoxCommandInput> box = session->input("helpdeskOtherDecription");
    EXPECT_TRUE(box->isVisible());
    session->choose(kChoice, kDefaultCaption);
    EXPECT_TRUE(box->isVisible());
    session->choose(kChoice, kOtherCaption);
    EXPECT_TRUE(box->isVisible());
}

TEST_F(Configuration, TakesTheAddressInABoxOfTwoRows) {
    openConfiguration();
    const Ptr<TextBoxCommandInput> box = session->dialog()->commandInputs()->item(2);
    EXPECT_EQ(box->id(), "helpdeskOther");
    EXPECT_EQ(box->name(), "");
    EXPECT_EQ(box->numRows(), 2);
    EXPECT_FALSE(box->isReadOnly());
    EXPECT_EQ(box->text(), kDefaultUrl);
}

TEST_F(Configuration, OpensOnTheDefaultProviderWithTheBoxHidden) {
    openConfiguration();
    EXPECT_EQ(shown(), "0 hidden");
}

TEST_F(Configuration, SwitchedFromTheDefaultProviderShowsTheBeginningOfAnAddress) {
    openConfiguration();
    session->choose(kChoice, kOtherCaption);
    EXPECT_EQ(shown(), "1 http://");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(Configuration, AcceptedAtOnceAfterTheSwitchStoresThatBeginning) {
    openConfiguration();
    session->choose(kChoice, kOtherCaption);
    session->ok();
    EXPECT_EQ(stored(), "http://");
}

TEST_F(Configuration, SwitchedBackToTheDefaultProviderHidesTheBoxAndStoresItsAddress) {
    store("https://help.example/desk");
    openConfiguration();
    session->choose(kChoice, kDefaultCaption);
    EXPECT_EQ(shown(), "0 hidden");
    session->ok();
    EXPECT_EQ(stored(), kDefaultUrl);
}

TEST_F(Configuration, KeepsATypedAddressOverASwitchThereAndBack) {
    store("https://help.example/desk");
    openConfiguration();
    session->type(kAddress, "typed");
    session->choose(kChoice, kDefaultCaption);
    session->choose(kChoice, kOtherCaption);
    EXPECT_EQ(shown(), "1 typed");
}

TEST_F(Configuration, AcceptedWithAnEmptyBoxStoresAnEmptyAddress) {
    store("https://help.example/desk");
    openConfiguration();
    session->type(kAddress, "");
    session->ok();
    EXPECT_EQ(stored(), "");
    openConfiguration();
    EXPECT_EQ(shown(), "1 ");
}

TEST_F(Configuration, TakesAnythingForAnAddress) {
    openConfiguration();
    session->choose(kChoice, kOtherCaption);
    session->paste(kAddress, "ask \xC5\xBDofie");
    session->ok();
    EXPECT_EQ(stored(), "ask \xC5\xBDofie");
}

TEST_F(Configuration, KeepsAnAddressWithAnAmpersandUnchanged) {
    const std::string url = "http://help.example/?a=1&b=2&lang=cs";
    openConfiguration();
    session->choose(kChoice, kOtherCaption);
    session->paste(kAddress, url);
    session->ok();
    EXPECT_EQ(stored(), "http://help.example/?a=1&amp;b=2&amp;lang=cs");
    openConfiguration();
    EXPECT_EQ(shown(), "1 " + url);
    session->ok();
    EXPECT_EQ(stored(), "http://help.example/?a=1&amp;b=2&amp;lang=cs");
}

/// An address as it is stored and as the box shows it.
struct Address {
    const char* name;
    const char* stored;
    const char* shown;
};

class ConfigurationOf : public Configuration, public testing::WithParamInterface<Address> {};

TEST_P(ConfigurationOf, KeepsTheAddressUnchanged) {
    store(GetParam().stored);
    openConfiguration();
    EXPECT_EQ(shown(), std::string("1 ") + GetParam().shown);
    session->ok();
    EXPECT_EQ(stored(), GetParam().stored);
}

INSTANTIATE_TEST_SUITE_P(EachAddress, ConfigurationOf,
                         testing::Values(Address{.name = "OfAnotherProvider",
                                                 .stored = "https://help.example/desk",
                                                 .shown = "https://help.example/desk"},
                                         // It is compared byte for byte.
                                         Address{.name = "OfTheDefaultProviderInUpperCase",
                                                 .stored = "HTTP://helpdesk.tarnix.example/",
                                                 .shown = "HTTP://helpdesk.tarnix.example/"},
                                         Address{.name = "WithAnEntity",
                                                 .stored = "http://h/?a=1&amp;amp;b=2&amp;lt;",
                                                 .shown = "http://h/?a=1&amp;b=2&lt;"},
                                         Address{.name = "WithATag",
                                                 .stored = "http://h/&lt;b&gt;bold&lt;/b&gt;",
                                                 .shown = "http://h/<b>bold</b>"}),
                         test_support::caseName);

TEST_F(Configuration, CancelledWritesNothing) {
    store("https://help.example/desk");
    const std::string before = test_support::readFile(settingsFile());
    openConfiguration();
    session->choose(kChoice, kDefaultCaption);
    session->cancel();
    EXPECT_EQ(test_support::readFile(settingsFile()), before);
}

TEST_F(Configuration, WithoutACategoryForTheProviderSavesTheSettingsAsTheyAre) {
    // The quotes show whether they were written again.
    test_support::writeFile(settingsFile(),
                            "<configuration><category name='mine'><a/></category>"
                            "</configuration>");
    openConfiguration();
    EXPECT_EQ(shown(), "1 ");
    session->paste(kAddress, "http://lost.example/");
    session->ok();
    const std::string bytes = test_support::readFile(settingsFile());
    EXPECT_NE(bytes.find("<configuration><category name=\"mine\"><a/></category></configuration>"),
              std::string::npos);
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(Configuration, WithoutAnElementForTheAddressThrowsWhileItOpens) {
    test_support::writeFile(settingsFile(), document(""));
    openConfiguration();
    EXPECT_EQ(uncaughtExceptions(), "_com_error:  in OnCommandCreated");
}

TEST_F(Configuration, LeavesAFileThatIsNotXmlAsItWas) {
    openConfiguration();
    test_support::writeFile(settingsFile(), "<configuration");
    session->ok();
    EXPECT_EQ(uncaughtExceptions(), "_com_error:  in OnExecute");
    EXPECT_EQ(test_support::readFile(settingsFile()), "<configuration");
    EXPECT_FALSE(session->dialogOpen());
}

TEST_F(Configuration, LeavesAFileThatCannotBeWrittenAsItWas) {
    store("https://help.example/desk");
    openConfiguration();
    session->paste(kAddress, "http://lost.example/");
    const std::string before = test_support::readFile(settingsFile());
    {
        const auto unwritable = test_support::holdUnwritable(settingsFile());
        session->ok();
    }
    EXPECT_EQ(uncaughtExceptions(), "_com_error:  in OnExecute");
    EXPECT_EQ(test_support::readFile(settingsFile()), before);
}

TEST_F(Configuration, AnswersOnlyItsChoice) {
    store("https://help.example/desk");
    openConfiguration();
    session->type(kAddress, kDefaultUrl);
    EXPECT_EQ(shown(), std::string("1 ") + kDefaultUrl);
}

}  // namespace
}  // namespace tarnix
