#include "tests/host/ui/host_test.h"

#include "host/application/main_queue.h"
#include "host/base/clock.h"
#include "host/design/document.h"
#include "host/design/outline.h"

namespace host {
namespace {

using namespace adsk::core;

/// A command without a dialog that lets the host deliver events during its execution.
class Waiting : public HostTest {
protected:
    Waiting() {
        define("Wait", [this](const Ptr<Command>& command) {
            on<OnCommand>(command->execute(), [this](const auto&) {
                note("waits");
                adsk::doEvents();
                note("goes_on");
            });
        });
    }

    /// A command that opens a dialog.
    void defineDialog(const std::string& id) {
        define(id, [this, id](const Ptr<Command>& command) {
            command->commandInputs()->addStringValueInput("text", "Text");
            on<OnCommand>(command->execute(), [this, id](const auto&) { note(id); });
        });
    }
};

TEST_F(Waiting, TheUserCanStartACommandMeanwhile) {
    define("Quick", [this](const Ptr<Command>& command) {
        on<OnCommand>(command->execute(), [this](const auto&) { note("quick"); });
    });
    post([] { pressCommand("Quick"); });
    traceHost();

    pressCommand("Wait");

    EXPECT_EQ(noted(),
              "starting:Wait created waits starting:Quick created quick terminated:Quick=1 goes_on "
              "terminated:Wait=1");
    EXPECT_EQ(uncaughtExceptions(), std::vector<UncaughtException>());
}

TEST_F(Waiting, ADialogOpenedMeanwhileStaysOpenAfterwards) {
    defineDialog("Dialog");
    post([] { pressCommand("Dialog"); });

    pressCommand("Wait");

    EXPECT_EQ(noted(), "waits goes_on");
    ASSERT_TRUE(openDialog());
    pressOk();
    EXPECT_EQ(noted(), "Dialog");
    EXPECT_FALSE(openDialog());
}

TEST_F(Waiting, ADialogCanBeUsedAndClosedMeanwhile) {
    defineDialog("Dialog");
    post([] {
        pressCommand("Dialog");
        pressOk();
    });

    pressCommand("Wait");

    EXPECT_EQ(noted(), "waits Dialog goes_on");
    EXPECT_FALSE(openDialog());
}

TEST_F(Waiting, TheSameCommandCanBeStartedAgainMeanwhile) {
    post([] { post([] { pressCommand("Wait"); }); });
    post([] { pressCommand("Wait"); });

    pressCommand("Wait");

    // The second waits inside the first, the third inside the second.
    EXPECT_EQ(noted(), "waits waits waits goes_on goes_on goes_on");
}

TEST_F(Waiting, WhatTheUserCannotDoMeanwhileIsReported) {
    post(pressOk);

    pressCommand("Wait");

    EXPECT_EQ(noted(), "waits goes_on");
    EXPECT_EQ(misuses(), (std::vector<Misuse>{{.operation = "adsk::doEvents",
                                               .text = "cannot press OK: no dialog is open",
                                               .event = "OnExecute"}}));
}

TEST_F(Waiting, InsideAnotherEventNothingElseCanStart) {
    open([this](const Ptr<Command>& command) {
        const auto button = command->commandInputs()->addBoolValueInput("button", "", false);
        on<OnChanged>(command->inputChanged(), [this](const auto&) {
            note("changes");
            adsk::doEvents();
        });
    });
    post([] { pressCommand("Wait"); });

    click(openDialog()->commandInputs()->itemById("button"));

    EXPECT_EQ(noted(), "changes");
    EXPECT_EQ(misuses(), (std::vector<Misuse>{{.operation = "adsk::doEvents",
                                               .text = "a command is at work: wait until it has "
                                                       "answered",
                                               .event = "OnInputChanged",
                                               .inputId = "button"}}));
}

TEST_F(Waiting, WhatTheClockHasScheduledHappensMeanwhile) {
    clock::schedule(0, [this] { note("due"); });

    pressCommand("Wait");

    EXPECT_EQ(noted(), "waits due goes_on");
}

TEST_F(Waiting, ADocumentThatOpensMeanwhileClosesAnOpenDialogAndNotTheCommandThatWaits) {
    defineDialog("Dialog");
    post([this] {
        pressCommand("Dialog");
        traceHost();
        ApplicationObject::current()->openInHost(parseOutline("Bolt"));
    });

    pressCommand("Wait");

    EXPECT_EQ(noted(), "waits terminated:Dialog=5 goes_on terminated:Wait=1");
    EXPECT_FALSE(openDialog());
}

}  // namespace
}  // namespace host
