#include "tests/support/fault_watch.h"

#include "host/base/host_state.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace test_support {
namespace {

using host::Misuse;
using host::UncaughtException;

void throwInHandler(const char* text) {
    host::enterModule("OnExecute", "button", [text] { throw std::runtime_error(text); });
}

class FaultWatchTest : public testing::Test {
protected:
    host::HostState host;
    FaultWatch watch;
    FaultWatch watchOfTheAddin{FaultWatch::KnownFaults::Excused};
};

TEST_F(FaultWatchTest, AnUnnamedExceptionFails) {
    throwInHandler("lost");

    EXPECT_NONFATAL_FAILURE(watch.verify(), "std::runtime_error: lost in OnExecute of button");
}

TEST_F(FaultWatchTest, AnUnnamedMisuseFails) {
    host::misuse("Attributes::add", "called on a deleted Attributes");

    EXPECT_NONFATAL_FAILURE(watch.verify(), "Attributes::add: called on a deleted Attributes");
}

TEST_F(FaultWatchTest, AssertingTheListsNamesWhatIsInThem) {
    throwInHandler("lost");
    host::misuse("Attributes::add", "no name");

    EXPECT_EQ(
        watch.exceptions(),
        (std::vector<UncaughtException>{{"OnExecute", "button", "std::runtime_error", "lost"}}));
    EXPECT_EQ(watch.misuses(), (std::vector<Misuse>{{"Attributes::add", "no name"}}));
    watch.verify();
}

TEST_F(FaultWatchTest, WhatFollowsTheAssertionFails) {
    throwInHandler("named");
    EXPECT_EQ(watch.exceptions().size(), 1U);
    throwInHandler("lost");

    EXPECT_NONFATAL_FAILURE(watch.verify(), "\"std::runtime_error: lost in OnExecute of button\"");
}

TEST_F(FaultWatchTest, ExceptionsAreForgottenOnlyAfterTheyAreNamed) {
    throwInHandler("named");
    EXPECT_EQ(watch.exceptions().size(), 1U);
    watch.forgetExceptions();
    throwInHandler("lost");

    EXPECT_NONFATAL_FAILURE(watch.forgetExceptions(), "std::runtime_error: lost");
    EXPECT_TRUE(watch.exceptions().empty());
}

TEST_F(FaultWatchTest, AnExpectedMisuseIsNamedOnce) {
    watch.expectMisuse("Attributes::add", "no name");
    host::misuse("Attributes::add", "no name");
    host::misuse("Attributes::add", "no name");

    EXPECT_NONFATAL_FAILURE(watch.verify(), "Attributes::add: no name");
}

TEST_F(FaultWatchTest, AnExpectedMisuseThatIsMissingFails) {
    watch.expectMisuse("Attributes::add", "no name");

    EXPECT_NONFATAL_FAILURE(watch.verify(), "Attributes::add: no name");
}

TEST_F(FaultWatchTest, AllowedExceptionsNeedNoNaming) {
    watch.allowExceptions();
    throwInHandler("allowed");

    watch.verify();
    throwInHandler("lost");
    EXPECT_NONFATAL_FAILURE(watch.verify(), "std::runtime_error: lost");
}

TEST_F(FaultWatchTest, AKnownExceptionNeedsNoNaming) {
    host::enterModule("OnInputChanged", "QEMA_btnExportXls",
                      [] { throw std::invalid_argument("invalid stoi argument"); });

    watchOfTheAddin.verify();
}

TEST_F(FaultWatchTest, AnExceptionOfAnInputWithANumberIsUnknown) {
    host::enterModule("OnInputChanged", "iProperty_0",
                      [] { throw std::invalid_argument("invalid stoi argument"); });

    EXPECT_NONFATAL_FAILURE(watchOfTheAddin.verify(), "in OnInputChanged of iProperty_0");
}

TEST_F(FaultWatchTest, KnownFaultsOfTheAddinAreAccusedWithoutIt) {
    host::misuse("CommandInputs::addTabCommandInput",
                 "the id \"QEMA_tab_structure_BOM\" is in use");

    EXPECT_NONFATAL_FAILURE(watch.verify(), "CommandInputs::addTabCommandInput");
}

TEST_F(FaultWatchTest, AKnownMisuseNeedsNoNaming) {
    host::misuse("CommandInputs::addTabCommandInput",
                 "the id \"QEMA_tab_structure_BOM\" is in use");

    EXPECT_TRUE(watchOfTheAddin.misuses().empty());
    watchOfTheAddin.verify();
}

}  // namespace
}  // namespace test_support
