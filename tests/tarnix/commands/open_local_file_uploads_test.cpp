#include "tests/support/case_name.h"
#include "tests/tarnix/commands/open_local_file_fixture.h"

#include "host/application/main_queue.h"
#include "host/base/clock.h"
#include "host/base/gate.h"
#include "host/session/dialog_answers.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

constexpr const char* kStillUploading =
    "Your file is still uploading to Fusion Team. You can find it in the data panel in the current "
    "project's root folder when it completes";
constexpr const char* kStillConverting =
    "File still uploaded, open from data panel after conversion completes";

class OpenLocalFileUploads : public OpenLocalFileTest {
protected:
    /// After so many seconds, in which no call waits, "model" is among the user's files, and it was
    /// not opened.
    void expectOnlyUploadedAfter(int seconds) {
        EXPECT_EQ(uploaded(), Texts());
        host::clock::advance(std::chrono::seconds(seconds));
        host::runPosted();
        EXPECT_EQ(uploaded(), Texts{"model"});
        EXPECT_EQ(opened(), Texts());
        EXPECT_EQ(uncaughtExceptions(), "");
    }
};

TEST_F(OpenLocalFileUploads, FileIsOpenedWhenUploadAndConversionHaveEnded) {
    storage().uploadSeconds = 4;
    storage().conversionSeconds = 7;

    pick({design("model.ipt")});

    EXPECT_EQ(opened(), Texts{"model"});
    EXPECT_EQ(messages(), Texts());
    // Converted at 11; the pass that opened it ends with a second more.
    EXPECT_EQ(host::clock::now(), 12);
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OpenLocalFileUploads, WaitIsShownInADialogThatIsNotBroughtOnScreen) {
    storage().uploadSeconds = 100;
    std::optional<host::Progress> seen;
    host::clock::schedule(3, [&] { seen = host::progressDialog(); });
    host::clock::schedule(5, host::cancelProgress);
    host::gate::reset();

    pick({design("model.ipt")});

    EXPECT_EQ(seen, (host::Progress{"Uploading: 2 secs", 2, "Upload in Backround", false}));
    EXPECT_EQ(host::gate::count("ProgressDialog::show"), 0U);
}

TEST_F(OpenLocalFileUploads, DialogIsPreparedOnceForAllTheWaiting) {
    storage().uploadSeconds = 2;
    storage().conversionSeconds = 2;
    host::gate::reset();

    pick({design("model.ipt")});

    EXPECT_EQ(host::gate::count("UserInterface::createProgressDialog"), 1U);
    EXPECT_EQ(host::gate::count("ProgressDialog::isBackgroundTranslucent"), 1U);
    EXPECT_EQ(host::gate::count("ProgressDialog::cancelButtonText"), 1U);
    EXPECT_EQ(host::gate::count("ProgressDialog::isCancelButtonShown"), 1U);
    // Uploading, then converting.
    EXPECT_EQ(host::gate::count("ProgressDialog::message"), 2U);
}

TEST_F(OpenLocalFileUploads, TurnsToTheConversionWithZero) {
    storage().uploadSeconds = 3;
    std::optional<host::Progress> seen;
    host::clock::schedule(4, [&] { seen = host::progressDialog(); });
    // At 4 the upload's wait ends. The host looks at its clock once before the text changes, which
    // would be too early; after one call after the upload, four in the wait, this is the sixth.
    host::gate::refuse("adsk::doEvents", 6);

    pick({design("model.ipt")});

    EXPECT_EQ(seen, (host::Progress{"Converting: 0 secs", 0, "Upload in Backround", false}));
}

TEST_F(OpenLocalFileUploads, ConversionIsCountedFromZero) {
    storage().uploadSeconds = 3;
    storage().conversionSeconds = 100;
    std::optional<host::Progress> seen;
    host::clock::schedule(6, [&] { seen = host::progressDialog(); });
    host::clock::schedule(8, host::cancelProgress);

    pick({design("model.ipt")});

    // It begins at 4, when the wait for the upload ends.
    EXPECT_EQ(seen, (host::Progress{"Converting: 1 secs", 1, "Upload in Backround", false}));
}

TEST_F(OpenLocalFileUploads, DialogIsHiddenAtTheEnd) {
    host::gate::reset();

    pick({design("model.ipt")});

    EXPECT_EQ(host::gate::count("ProgressDialog::hide"), 1U);
    EXPECT_EQ(host::progressDialog(), std::nullopt);
}

TEST_F(OpenLocalFileUploads, FailedUploadIsReported) {
    storage().uploadSeconds = 2;
    storage().uploadFails = true;

    pick({design("model.ipt")});

    EXPECT_EQ(messages(), Texts{"Failed"});
    EXPECT_EQ(uploaded(), Texts());
    EXPECT_EQ(opened(), Texts());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OpenLocalFileUploads, MissingFileFailsToUpload) {
    pick({pathOf("missing.ipt")});

    EXPECT_EQ(messages(), Texts{"Failed"});
}

TEST_F(OpenLocalFileUploads, CancelledUploadGoesOnInTheHost) {
    storage().uploadSeconds = 60;
    host::clock::schedule(5, host::cancelProgress);

    pick({design("model.ipt")});

    EXPECT_EQ(messages(), Texts{kStillUploading});
    EXPECT_EQ(host::clock::now(), 6);
    expectOnlyUploadedAfter(60);
}

TEST_F(OpenLocalFileUploads, AtTheLimitTheCommandEndsSilentlyAndTheUploadGoesOnInTheHost) {
    storage().uploadSeconds = 5000;

    pick({design("model.ipt")});

    EXPECT_EQ(host::clock::now(), 1001);
    EXPECT_EQ(messages(), Texts());
    expectOnlyUploadedAfter(4000);
}

TEST_F(OpenLocalFileUploads, UploadThatEndsAtTheLimitIsOpened) {
    storage().uploadSeconds = 1000;

    pick({design("model.ipt")});

    EXPECT_EQ(opened(), Texts{"model"});
}

struct Conversions {
    const char* name;
    int host::StoragePace::*failing;
    int failures;
    std::size_t tries;
    int seconds;
};

class OpenLocalFileConversions : public OpenLocalFileUploads,
                                 public testing::WithParamInterface<Conversions> {};

TEST_P(OpenLocalFileConversions, AreTriedUntilOneSucceeds) {
    storage().*GetParam().failing = GetParam().failures;
    host::gate::reset();

    pick({design("model.ipt")});

    EXPECT_EQ(host::gate::count("Documents::open"), GetParam().tries);
    EXPECT_EQ(host::clock::now(), GetParam().seconds);
    EXPECT_EQ(opened(), Texts{"model"});
    EXPECT_EQ(uncaughtExceptions(), "");
}

INSTANTIATE_TEST_SUITE_P(
    That, OpenLocalFileConversions,
    testing::Values(Conversions{.name = "ReturnNothingOnceASecond",
                                .failing = &host::StoragePace::conversionsReturningNothing,
                                .failures = 5,
                                .tries = 6,
                                .seconds = 6},
                    Conversions{.name = "ThrowAtOnce",
                                .failing = &host::StoragePace::conversionsThrowing,
                                .failures = 3,
                                .tries = 4,
                                .seconds = 1}),
    test_support::caseName);

TEST_F(OpenLocalFileUploads, FileThatCanNeverBeConvertedIsWaitedForUntilTheUserCancels) {
    host::clock::schedule(5000, host::cancelProgress);

    pick({file("model.ipt", "no design at all")});

    EXPECT_EQ(messages(), Texts{kStillConverting});
    EXPECT_EQ(uploaded(), Texts{"model"});
    EXPECT_EQ(opened(), Texts());
    // Cancelled in the pass that began at 5000, which ends before its sleep.
    EXPECT_EQ(host::clock::now(), 5000);
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OpenLocalFileUploads, SeveralFilesAreHandledStrictlyOneAfterTheOther) {
    storage().uploadSeconds = 2;
    storage().conversionSeconds = 2;

    pick({design("a.ipt"), design("b.f3d"), design("c.iam")});

    EXPECT_EQ(opened(), (Texts{"a", "b", "c"}));
    // 3 for the upload, 2 for the conversion (from 2 to 4, tried at 3 and 4), twice.
    EXPECT_EQ(host::clock::now(), 10);
}

TEST_F(OpenLocalFileUploads, FailureOfOneFileDoesNotKeepTheNextOneBack) {
    pick({pathOf("missing.ipt"), design("part.f3d")});

    EXPECT_EQ(messages(), Texts{"Failed"});
    EXPECT_EQ(opened(), Texts{"part"});
}

TEST_F(OpenLocalFileUploads, SecondPressDuringAWaitLeavesTheFirstToItsList) {
    storage().uploadSeconds = 6;
    const std::string other = design("other.f3d");
    host::clock::schedule(3, [&] { pick({other}); });

    pick({design("slow.ipt"), design("next.f3d")});

    EXPECT_EQ(opened(), (Texts{"other", "slow", "next"}));
    pickNothing();
    EXPECT_EQ(opened(), (Texts{"other", "slow", "next", "other"}));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OpenLocalFileUploads, AnotherCommandCanBeUsedDuringAWait) {
    storage().uploadSeconds = 6;
    storage().uploadFails = true;
    open("Housing  box=1x1x1\n");
    host::clock::schedule(3, [&] { session->press("QM_TX_BOM"); });
    host::clock::schedule(4, [&] { session->activateTab(test_support::kStructureTab); });

    pick({design("model.ipt")});

    EXPECT_EQ(messages(), Texts{"Failed"});
    ASSERT_TRUE(session->dialogOpen());
    EXPECT_EQ(session->dialog()->parentCommandDefinition()->id(), "QM_TX_BOM");
    session->cancel();
    EXPECT_FALSE(session->dialogOpen());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OpenLocalFileUploads, DialogOpenedDuringAWaitClosesWhenTheFileBecomesTheActiveDocument) {
    storage().uploadSeconds = 6;
    host::clock::schedule(3, [&] { session->press("QM_TX_BOM"); });

    pick({design("model.ipt")});

    EXPECT_EQ(opened(), Texts{"model"});
    EXPECT_FALSE(session->dialogOpen());
    EXPECT_EQ(uncaughtExceptions(), "");
}

class OpenLocalFileWithoutProject : public OpenLocalFileTest {
protected:
    // No folder is used for the user's data.
    void SetUp() override { AddinTest::SetUp(); }
};

TEST_F(OpenLocalFileWithoutProject, ThrowsForAFileThatIsToBeUploaded) {
    pick({design("model.ipt"), design("part.f3d")});

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnExecute");
    EXPECT_EQ(opened(), Texts());
    EXPECT_EQ(messages(), Texts());
}

TEST_F(OpenLocalFileWithoutProject, ImportsWhatTheHostReads) {
    pick({design("part.f3d")});

    EXPECT_EQ(opened(), Texts{"part"});
    EXPECT_EQ(uncaughtExceptions(), "");
}

}  // namespace
