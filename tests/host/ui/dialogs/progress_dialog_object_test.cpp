#include "tests/host/ui/host_test.h"

#include "host/base/clock.h"
#include "host/session/dialog_answers.h"

namespace host {
namespace {

using namespace adsk::core;
using namespace std::chrono_literals;

class ProgressDialogs : public HostTest {
protected:
    ProgressDialogs() : HostTest(setup()) {}

    static HostSetup setup() {
        HostSetup setup;
        setup.longestWait = 60;
        return setup;
    }

    static void wait(std::chrono::milliseconds duration) {
        clock::advance(duration);
        adsk::doEvents();
    }

    Ptr<ProgressDialog> dialog = ui()->createProgressDialog();
};

TEST_F(ProgressDialogs, BeginWithoutAButton) {
    EXPECT_EQ(dialog->cancelButtonText(), "Cancel");
    EXPECT_FALSE(dialog->isCancelButtonShown());
    EXPECT_FALSE(dialog->isBackgroundTranslucent());
    EXPECT_EQ(dialog->message(), "");
    EXPECT_EQ(dialog->progressValue(), 0);
    EXPECT_FALSE(dialog->wasCancelled());
}

TEST_F(ProgressDialogs, PutNumbersIntoTheirMessage) {
    dialog->show("Title", "%v of %m are %p %, %v", 10, 50);
    dialog->progressValue(30);

    EXPECT_EQ(dialog->message(), "%v of %m are %p %, %v");
    EXPECT_EQ(progressDialog(), (Progress{"30 of 50 are 50 %, 30", 30, "", false}));
}

TEST_F(ProgressDialogs, ShowWhetherTheyAreTranslucent) {
    dialog->isBackgroundTranslucent(true);

    EXPECT_EQ(progressDialog(), (Progress{"", 0, "", false, true}));
}

TEST_F(ProgressDialogs, AreCancelledByTheUser) {
    dialog->isCancelButtonShown(true);
    dialog->cancelButtonText("Stop");

    cancelProgress();

    EXPECT_TRUE(dialog->wasCancelled());
    EXPECT_EQ(progressDialog(), (Progress{"", 0, "Stop", true}));
}

TEST_F(ProgressDialogs, WithoutAButtonCannotBeCancelledByTheUser) {
    EXPECT_EQ(misuseOf(cancelProgress), "what is in progress has no button to cancel it");
    dialog->hide();
    EXPECT_EQ(misuseOf(cancelProgress), "nothing is in progress that could be cancelled");
}

TEST_F(ProgressDialogs, TheNewestVisibleOneIsSeen) {
    const Ptr<ProgressDialog> newer = ui()->createProgressDialog();
    newer->message("newer");
    EXPECT_EQ(progressDialog()->text, "newer");

    newer->hide();
    dialog->message("older");

    EXPECT_EQ(progressDialog()->text, "older");
}

TEST_F(ProgressDialogs, EndWithTheirLastHandle) {
    dialog = nullptr;

    EXPECT_EQ(progressDialog(), std::nullopt);
}

TEST_F(ProgressDialogs, AreCancelledByTheHostWhenTheyHaveWaitedTooLong) {
    wait(20s);
    const Ptr<ProgressDialog> later = ui()->createProgressDialog();

    wait(39s);
    EXPECT_FALSE(dialog->wasCancelled());
    wait(1s);

    EXPECT_TRUE(dialog->wasCancelled());
    EXPECT_FALSE(later->wasCancelled());
}

}  // namespace
}  // namespace host
