#include "tests/host/ui/host_test.h"

#include "host/application/main_queue.h"

namespace host {
namespace {

using namespace adsk::core;

class Messages : public HostTest {};

TEST_F(Messages, AreKeptWithWhatWasPressed) {
    answerNextMessage(DialogNo);

    EXPECT_EQ(ui()->messageBox("Really?", "Title", YesNoButtonType, QuestionIconType), DialogNo);
    EXPECT_EQ(ui()->messageBox("Done"), DialogOK);

    EXPECT_EQ(messages(), (std::vector<Message>{
                              {"Really?", "Title", YesNoButtonType, QuestionIconType, DialogNo},
                              {"Done", "", OKButtonType, NoIconIconType, DialogOK}}));
}

TEST_F(Messages, AreAnsweredByTheFirstButtonByDefault) {
    EXPECT_EQ(ui()->messageBox("?", "", YesNoCancelButtonType), DialogYes);
    EXPECT_EQ(ui()->messageBox("?", "", OKCancelButtonType), DialogOK);
}

TEST_F(Messages, AreAnsweredByTheCallback) {
    askForAnswers(
        [](const Message& message) { return message.text == "Stop?" ? DialogCancel : DialogOK; });

    EXPECT_EQ(ui()->messageBox("Stop?", "", OKCancelButtonType), DialogCancel);
    EXPECT_EQ(ui()->messageBox("Go?", "", OKCancelButtonType), DialogOK);
}

TEST_F(Messages, AnAnswerWithoutAButtonIsReported) {
    answerNextMessage(DialogYes);

    EXPECT_EQ(ui()->messageBox("Done"), DialogOK);

    EXPECT_EQ(
        misuses(),
        (std::vector<Misuse>{{.operation = "UserInterface::messageBox",
                              .text = "the message \"Done\" has no button for the answer 2"}}));
}

TEST_F(Messages, DoEventsRunsWhatWasPostedAndOnlyThat) {
    post([this] { note("posted"); });
    post([this] { post([this] { note("later"); }); });

    adsk::doEvents();
    EXPECT_EQ(noted(), "posted");

    adsk::doEvents();
    EXPECT_EQ(noted(), "later");
}

TEST_F(Messages, PostedWorkCountsAsNoCallOfTheModule) {
    gate::reset();
    post([] { (void)ui(); });

    enterModule("run", "", [] { adsk::doEvents(); });

    EXPECT_EQ(gate::counts(), (std::map<std::string, std::uint64_t>{{"adsk::doEvents", 1}}));
}

TEST_F(Messages, AnExceptionOfPostedWorkDoesNotReachTheModule) {
    post([] { pressOk(); });

    EXPECT_TRUE(enterModule("run", "", [] { adsk::doEvents(); }));

    EXPECT_EQ(misuses(), (std::vector<Misuse>{{.operation = "adsk::doEvents",
                                               .text = "cannot press OK: no dialog is open",
                                               .event = "run"}}));
}

TEST_F(Messages, AutoTerminateIsRemembered) {
    EXPECT_TRUE(adsk::autoTerminate());

    adsk::autoTerminate(false);

    EXPECT_FALSE(adsk::autoTerminate());
    EXPECT_FALSE(unloadsAfterRun());
}

}  // namespace
}  // namespace host
