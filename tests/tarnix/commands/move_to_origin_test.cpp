#include "tests/support/addin_test.h"

#include "host/base/gate.h"
#include "host/session/input_actions.h"
#include "host/session/user_actions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace {

using namespace adsk::core;
using namespace adsk::fusion;

constexpr const char* kCommand = "QM_TX_moveComponentToOrigin";

/// Three parts at different places, and an assembly with one.
constexpr const char* kDesign = R"(
    Housing  at=1,2,3
    Shaft  at=4,5,6
    Cover  at=7,8,9
    Drive  at=0,0,1
      Bolt  at=2,0,0)";

/// Where the parts and the assembly are as long as nothing moves them.
constexpr const char* kUnmoved = "Housing 1 2 3\nShaft 4 5 6\nCover 7 8 9\nDrive 0 0 1\n";

class MoveToOrigin : public test_support::AddinTest {
protected:
    void SetUp() override {
        AddinTest::SetUp();
        open(kDesign);
    }

    static Ptr<Design> design() { return Application::get()->activeProduct(); }

    static Ptr<Occurrence> occurrence(std::size_t index) {
        return design()->rootComponent()->occurrences()->item(index);
    }

    /// Opens the dialog and picks the occurrences of these places directly under the root.
    void select(const std::vector<std::size_t>& places) {
        session->press(kCommand);
        for (const std::size_t place : places) {
            host::pick(occurrence(place));
        }
    }

    /// Where the occurrences directly under the root lie: name, place, and whether it is grounded.
    [[nodiscard]] std::string places() const {
        const host::DesignData data = session->design();
        std::string result;
        for (const host::OccurrenceData& each : data.components.front().children) {
            result += data.components[each.component].name + placeOf(each) + "\n";
        }
        return result;
    }

    static std::string placeOf(const host::OccurrenceData& occurrence) {
        std::string result;
        for (const std::size_t cell : {3U, 7U, 11U}) {
            result += " " + std::to_string(static_cast<int>(occurrence.transform.cells[cell]));
        }
        return result + (occurrence.grounded ? " grounded" : "");
    }
};

TEST_F(MoveToOrigin, DialogAsksForOccurrencesAndForGrounding) {
    session->press(kCommand);

    EXPECT_EQ(session->inputIds(), (std::vector<std::string>{"occurenceInput", "ground"}));
    const Ptr<SelectionCommandInput> selection = session->input("occurenceInput");
    EXPECT_EQ(selection->name(), "Occurence");
    EXPECT_EQ(selection->commandPrompt(), "Select the Occurence.");
    const Ptr<BoolValueCommandInput> ground = session->input("ground");
    EXPECT_EQ(ground->name(), "Gound selection occurence");
    EXPECT_TRUE(ground->isCheckBox());
    EXPECT_EQ(ground->resourceFolder(), "");
    EXPECT_FALSE(ground->value());
}

TEST_F(MoveToOrigin, DialogTakesNothingButOccurrences) {
    session->press(kCommand);

    EXPECT_THROW(host::pick(design()->rootComponent()), host::MisuseError);
}

TEST_F(MoveToOrigin, DialogsOkIsAvailableOnlyWithAtLeastOneOccurrenceSelected) {
    session->press(kCommand);
    EXPECT_THROW(session->ok(), host::MisuseError);

    host::pick(occurrence(0));
    session->ok();

    EXPECT_FALSE(session->dialogOpen());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(MoveToOrigin, SeveralOccurrencesAreMovedByOneCallAllToTheSamePlace) {
    select({0, 1, 3});
    host::gate::reset();

    session->ok();

    EXPECT_EQ(places(), "Housing 0 0 0\nShaft 0 0 0\nCover 7 8 9\nDrive 0 0 0\n");
    EXPECT_EQ(host::gate::count("Component::transformOccurrences"), 1U);
    EXPECT_EQ(host::gate::count("Matrix3D::create"), 1U);
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(MoveToOrigin, TargetIsTheIdentityWhateverThePlaceWas) {
    host::DesignData turned = session->design();
    turned.components.front().children.front().transform.cells = {0, -1, 0, 5, 1, 0, 0, 6,
                                                                  0, 0,  1, 7, 0, 0, 0, 1};
    session->openDesign(turned);
    select({0});

    session->ok();

    EXPECT_EQ(session->design().components.front().children.front().transform, host::Transform());
}

TEST_F(MoveToOrigin, WithGroundUnsetTheOccurrencesStayFree) {
    select({0, 2});
    host::gate::reset();

    session->ok();

    EXPECT_EQ(places(), "Housing 0 0 0\nShaft 4 5 6\nCover 0 0 0\nDrive 0 0 1\n");
    EXPECT_EQ(host::gate::count("Occurrence::isGrounded"), 0U);
}

TEST_F(MoveToOrigin, WithGroundSetEachSelectedOccurrenceIsGroundedAfterTheMove) {
    select({0, 2});
    session->click("ground");
    host::gate::reset();
    host::gate::record(true);

    session->ok();

    EXPECT_EQ(places(), "Housing 0 0 0 grounded\nShaft 4 5 6\nCover 0 0 0 grounded\nDrive 0 0 1\n");
    const std::vector<std::string> calls = host::gate::recorded();
    const auto moved = std::find(calls.begin(), calls.end(), "Component::transformOccurrences");
    ASSERT_GE(calls.end() - moved, 4);
    EXPECT_EQ(
        std::vector<std::string>(moved, moved + 4),
        (std::vector<std::string>{"Component::transformOccurrences", "BoolValueCommandInput::value",
                                  "Occurrence::isGrounded", "Occurrence::isGrounded"}));
}

TEST_F(MoveToOrigin, GroundsEvenWhatTheHostRefusesToMove) {
    select({1});
    session->click("ground");
    host::gate::refuse("Component::transformOccurrences", 1);

    session->ok();

    EXPECT_EQ(places(), "Housing 1 2 3\nShaft 4 5 6 grounded\nCover 7 8 9\nDrive 0 0 1\n");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(MoveToOrigin, WithNoDesignAsTheActiveProductNothingIsMovedAndNoMessageIsShown) {
    select({0});
    session->click("ground");
    host::gate::refuse("Application::activeProduct", 1);

    session->ok();

    EXPECT_EQ(places(), kUnmoved);
    EXPECT_TRUE(session->messages().empty());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(MoveToOrigin, SecondOpeningHasNewInputs) {
    select({0});
    session->click("ground");
    session->ok();

    select({1});
    session->ok();

    EXPECT_EQ(places(), "Housing 0 0 0 grounded\nShaft 0 0 0\nCover 7 8 9\nDrive 0 0 1\n");
}

TEST_F(MoveToOrigin, ThrowsWithoutTheSelectionInput) {
    host::gate::refuse("CommandInputs::addSelectionInput", 1);

    session->press(kCommand);

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnCommandCreated");
}

class MoveToOriginWithout : public MoveToOrigin, public testing::WithParamInterface<const char*> {};

TEST_P(MoveToOriginWithout, ThrowsAndMovesNothing) {
    select({0, 1});
    host::gate::refuse(GetParam(), 2);

    session->ok();

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnExecute");
    EXPECT_EQ(places(), kUnmoved);
}

INSTANTIATE_TEST_SUITE_P(EachCall, MoveToOriginWithout,
                         testing::Values("SelectionCommandInput::selection", "Selection::entity"));

TEST_F(MoveToOrigin, ThrowsWhereTheHostReturnsNoOccurrenceToGround) {
    select({0});
    session->click("ground");
    host::gate::refuse("Selection::entity", 1);

    session->ok();

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnExecute");
    EXPECT_EQ(places(), kUnmoved);
}

}  // namespace
