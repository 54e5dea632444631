#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

#include <string>

using test_support::isOneLine;
using test_support::ProgramResult;
using test_support::readFile;

using UserProperties = test_support::Workbench;

TEST_F(UserProperties, AreAddedListedAndRemoved) {
    EXPECT_EQ(run({"user-properties", "list"}).output, "");
    EXPECT_EQ(run({"user-properties", "add", "Colour"}).output, "Colour\n");
    EXPECT_EQ(run({"user-properties", "add", "Surface finish"}).output, "Colour\nSurface finish\n");
    EXPECT_EQ(run({"user-properties", "remove", "Colour"}).output, "Surface finish\n");
    EXPECT_EQ(run({"user-properties", "list"}).output, "Surface finish\n");
}

TEST_F(UserProperties, APropertyThatTheDialogRefusesIsRefusedInItsWords) {
    run({"user-properties", "add", "Colour"});
    const std::string old = readFile(settingsFile());

    const ProgramResult result = run({"user-properties", "add", "a.b"});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
    EXPECT_EQ(result.errors.rfind("tarnix-workbench: Incorrect char ! Valid chars are only "
                                  "0,1,2,3,4,5,6,7,8,9,SPACE,_,-",
                                  0),
              0U)
        << result.errors;
    EXPECT_EQ(readFile(settingsFile()), old);
}

TEST_F(UserProperties, APropertyThatTheDialogHasAlreadyIsRefused) {
    run({"user-properties", "add", "Colour"});
    const std::string old = readFile(settingsFile());

    EXPECT_EQ(run({"user-properties", "add", "Colour"}).errors,
              "tarnix-workbench: property \"Colour\" exists already\n");
    const ProgramResult result = run({"user-properties", "add", "Part Number"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "tarnix-workbench: property \"Part Number\" exists already\n");
    EXPECT_EQ(readFile(settingsFile()), old);
}

TEST_F(UserProperties, ANameWithASpaceAtAnEndIsRefused) {
    const ProgramResult result = run({"user-properties", "add", "Colour "});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: \"Colour \": a name must not begin or end with a space\n");
    EXPECT_EQ(run({"user-properties", "list"}).output, "");
}

TEST_F(UserProperties, APropertyThatTheSettingsCannotHoldIsReported) {
    storeSettings(R"(<category name="bomItems"/>)");
    const std::string old = settingsRoot();

    const ProgramResult result = run({"user-properties", "add", "Colour"});

    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "tarnix-workbench: \"Colour\": the add-in's settings did not take the list\n");
    EXPECT_EQ(settingsRoot(), old);
}

TEST_F(UserProperties, APropertyIsAddedBesideOneThatHasNoName) {
    storeSettings(
        R"(<category name="iProperty"><item_iProperty id=""><displayName/></item_iProperty>)"
        R"(</category>)");

    const ProgramResult result = run({"user-properties", "add", "Colour"});

    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "Colour\n");
}

TEST_F(UserProperties, APropertyMayBeginWithAHyphen) {
    EXPECT_EQ(run({"user-properties", "add", "--", "-x"}).output, "-x\n");
    EXPECT_EQ(run({"user-properties", "remove", "--", "-x"}).output, "");
}

TEST_F(UserProperties, APropertyThatIsNotThereCannotBeRemoved) {
    const ProgramResult result = run({"user-properties", "remove", "Colour"});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "tarnix-workbench: there is no custom property \"Colour\"\n");
}

TEST_F(UserProperties, APropertyNeedsAName) {
    const ProgramResult result = run({"user-properties", "add", ""});

    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
}
