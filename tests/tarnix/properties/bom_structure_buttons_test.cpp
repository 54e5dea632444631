#include "tests/support/case_name.h"
#include "tests/tarnix/properties/properties_fixture.h"

#include "host/session/input_actions.h"

#include <filesystem>
#include <string>
#include <vector>

namespace tarnix {
namespace {

class StructureButtons : public PropertiesTest {
protected:
    void press(const std::string& caption) { session->choose(kStructure, caption); }

    /// Switches two buttons on and reports one change, as no user can.
    void switchOnProduceAndBuyAtOnce() {
        const adsk::core::Ptr<adsk::core::ButtonRowCommandInput> row = session->input(kStructure);
        row->listItems()->item(0)->isSelected(true);
        row->listItems()->item(1)->isSelected(true);
        host::reportChange(row);
    }

    /// A component on which these are on.
    void pickOneWith(const std::string& buttons) {
        std::string line = "Bolt ";
        for (std::size_t from = 0; from < buttons.size();) {
            const std::size_t to = std::min(buttons.find(' ', from), buttons.size());
            line += " attribute=QEMA_PropertiesAttributesGroup/" + buttons.substr(from, to - from) +
                    "/1";
            from = to + 1;
        }
        open(line);
        openAndPick("Bolt:1");
    }
};

struct Presses {
    const char* name;
    const char* onAtFirst;
    std::vector<std::string> pressed;
    const char* onAtLast;
};

class StructureButtonsPressed : public StructureButtons,
                                public testing::WithParamInterface<Presses> {};

class StructureButtonsWithIcons : public StructureButtons {
protected:
    [[nodiscard]] host::SessionOptions options() const override {
        return test_support::addinWithIconsOptions();
    }
};

TEST_F(StructureButtonsWithIcons, NameFoldersThatTheAddinBrings) {
    openProperties();
    const adsk::core::Ptr<adsk::core::ButtonRowCommandInput> row = session->input(kStructure);
    ASSERT_EQ(row->listItems()->count(), 5U);

    for (std::size_t i = 0; i < 5; ++i) {
        const std::string icon = row->listItems()->item(i)->icon();
        EXPECT_EQ(icon, "resources/_" + row->listItems()->item(i)->name());
        EXPECT_TRUE(std::filesystem::is_directory(session->addin().resource(icon))) << icon;
    }
}

TEST_P(StructureButtonsPressed, LeaveTheseOn) {
    pickOneWith(GetParam().onAtFirst);
    ASSERT_EQ(buttonsOn(), GetParam().onAtFirst);
    for (const std::string& caption : GetParam().pressed) {
        press(caption);
    }
    EXPECT_EQ(buttonsOn(), GetParam().onAtLast);
}

INSTANTIATE_TEST_SUITE_P(Presses, StructureButtonsPressed,
                         testing::Values(Presses{.name = "TheOneThatIsOnLeavesNoneOn",
                                                 .onAtFirst = "Buy",
                                                 .pressed = {"Buy"},
                                                 .onAtLast = ""},
                                         Presses{.name = "TheNextAfterThatMakesAnyTheOnlyOneOn",
                                                 .onAtFirst = "Buy",
                                                 .pressed = {"Buy", "Reference"},
                                                 .onAtLast = "Reference"},
                                         Presses{.name = "ASecondSwitchesALoadedOneOff",
                                                 .onAtFirst = "AsPart",
                                                 .pressed = {"Produce"},
                                                 .onAtLast = "Produce"},
                                         // The stored one is the last that was on.
                                         Presses{
                                             .name = "OfTwoThatAreBothNotTheStoredOneBothStayOn",
                                             .onAtFirst = "Produce Buy Reference",
                                             .pressed = {"Reference"},
                                             .onAtLast = "Produce Buy"}),
                         test_support::caseName);

TEST_F(StructureButtons, PressingASecondSwitchesTheFirstOff) {
    openProperties();
    press("Produce");
    press("Divided");
    EXPECT_EQ(buttonsOn(), "Divided");
    press("Produce");
    EXPECT_EQ(buttonsOn(), "Produce");
}

TEST_F(StructureButtons, OfTwoThatBothStayOnTheLaterIsStored) {
    pickOneWith("Produce Buy Reference");
    press("Reference");
    press("Divided");  // three on: nothing happens
    EXPECT_EQ(buttonsOn(), "Produce Buy Divided");
    press("Produce");  // of the two that are left "Buy" is the stored one
    EXPECT_EQ(buttonsOn(), "Divided");
}

TEST_F(StructureButtons, StoresNothingWhenAComponentWithoutStructureIsLoaded) {
    open(R"(
        Bolt  structure=Buy
        Nut)");
    openAndPick("Bolt:1");
    session->pick("Nut:1");
    switchOnProduceAndBuyAtOnce();
    EXPECT_EQ(buttonsOn(), "Produce Buy");
}

TEST_F(StructureButtons, KeepTheStoredOneInMindWhenItIsSwitchedOff) {
    pickOneWith("Buy");
    press("Buy");
    ASSERT_EQ(buttonsOn(), "");
    switchOnProduceAndBuyAtOnce();
    EXPECT_EQ(buttonsOn(), "Produce");
}

TEST_F(StructureButtons, AnythingButOneIsOff) {
    open(
        "Bolt  attribute=QEMA_PropertiesAttributesGroup/Buy/true "
        "attribute=QEMA_PropertiesAttributesGroup/Divided/11");
    openAndPick("Bolt:1");
    EXPECT_EQ(buttonsOn(), "");
}

}  // namespace
}  // namespace tarnix
