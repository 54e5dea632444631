#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

#include <string>

using test_support::ProgramResult;

using ConfigureCommand = test_support::Workbench;

TEST_F(ConfigureCommand, TheSupportProviderIsChosenAndShown) {
    EXPECT_EQ(run({"configure"}).output,
              "Support provider: http://helpdesk.tarnix.example/ (default)\n");
    EXPECT_EQ(run({"configure", "--support-url", "http://help.example/?a=1&b=2"}).output,
              "Support provider: http://help.example/?a=1&b=2\n");
    EXPECT_EQ(run({"configure"}).output, "Support provider: http://help.example/?a=1&b=2\n");
    EXPECT_EQ(run({"configure", "--support-url", ""}).output, "Support provider: none\n");
    EXPECT_EQ(run({"configure", "--support-url", "default"}).output,
              "Support provider: http://helpdesk.tarnix.example/ (default)\n");
}

TEST_F(ConfigureCommand, ASupportProviderThatTheSettingsCannotHoldIsReported) {
    storeSettings(R"(<category name="bomItems"/>)");
    const std::string old = settingsRoot();

    const ProgramResult other = run({"configure", "--support-url", "http://help.example/"});
    const ProgramResult standard = run({"configure", "--support-url", "default"});

    EXPECT_EQ(other.status, 4);
    EXPECT_EQ(other.output, "");
    EXPECT_EQ(
        other.errors,
        "tarnix-workbench: --support-url \"http://help.example/\": the add-in's settings hold "
        "\"\" instead\n");
    EXPECT_EQ(standard.status, 4);
    EXPECT_EQ(standard.errors,
              "tarnix-workbench: --support-url \"default\": the add-in's settings hold \"\" "
              "instead\n");
    EXPECT_EQ(settingsRoot(), old);
}

TEST_F(ConfigureCommand, AnAddressWithASpaceAtAnEndIsRefused) {
    const ProgramResult result = run({"configure", "--support-url", "http://help.example/ "});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "tarnix-workbench: --support-url \"http://help.example/ \": an address must "
              "not begin or end with a space\n");
    EXPECT_EQ(run({"configure"}).output,
              "Support provider: http://helpdesk.tarnix.example/ (default)\n");
}

TEST_F(ConfigureCommand, AnAddressMayLookLikeMarkup) {
    const std::string url = "http://help.example/?a=1&amp;b=<b>2</b>";

    EXPECT_EQ(run({"configure", "--support-url", url}).output, "Support provider: " + url + "\n");
    EXPECT_EQ(run({"configure"}).output, "Support provider: " + url + "\n");
}
