#include "workbench/cli/profile.h"

#include "workbench/cli/exit_code.h"

#include <gtest/gtest.h>
#include <CLI/CLI.hpp>

namespace {

using workbench::ProfileEntry;

/// A command with an option of each kind.
struct Command {
    Command() {
        app.add_option("--view", view)
            ->check(CLI::IsMember({"parts", "indented"}))
            ->capture_default_str();
        app.add_option("--columns", columns);
        app.add_option("--filter", filters)->allow_extra_args(false);
        app.add_option("--multiply", multiply)->capture_default_str();
        app.add_flag("--decimal-comma", comma);
        app.add_option("--profile", ignored);
    }

    void apply(const std::string& text) {
        const workbench::Profile profile = workbench::parseProfile(text, "p.toml");
        applyProfile(app, profile.entries, keys, profile.file);
    }

    std::string view = "parts";
    std::string columns;
    std::vector<std::string> filters;
    int multiply = 1;
    bool comma = false;
    std::string ignored;
    workbench::ProfileKeys keys{.excluded = {"profile"}, .lists = {"columns"}};
    CLI::App app{"", "parts"};
};

class Profile : public testing::Test {
protected:
    /// The line with which a profile is refused.
    std::string refusal(const std::string& text) {
        try {
            command.apply(text);
        } catch (const workbench::Failure& failure) {
            EXPECT_EQ(failure.code(), workbench::ExitCode::BadInput);
            return failure.what();
        }
        return "";
    }

    Command command;
};

TEST_F(Profile, FillsTheOptionsOfACommand) {
    command.apply(R"(
        view = "indented"
        columns = ["Item", "Mass[g]:2", "a,b"]
        filter = ["Mass > 5 g", "Material = Steel"]
        multiply = 3
        decimal-comma = true)");

    EXPECT_EQ(command.view, "indented");
    EXPECT_EQ(command.columns, R"(Item,Mass[g]:2,a\,b)");
    EXPECT_EQ(command.filters, (std::vector<std::string>{"Mass > 5 g", "Material = Steel"}));
    EXPECT_EQ(command.multiply, 3);
    EXPECT_TRUE(command.comma);
}

TEST_F(Profile, AFlagThatIsFalseKeepsOutOneThatIsTrue) {
    command.apply("decimal-comma = false");
    command.apply("decimal-comma = true");

    EXPECT_FALSE(command.comma);
    EXPECT_NE(profileText(command.app, command.keys).find("decimal-comma = false\n"),
              std::string::npos);
}

TEST_F(Profile, AnOptionThatWasGivenWins) {
    command.app.parse("--view parts --filter Level=1");

    command.apply("view = \"indented\"\nfilter = \"Level=2\"\nmultiply = 2");

    EXPECT_EQ(command.view, "parts");
    EXPECT_EQ(command.filters, std::vector<std::string>{"Level=1"});
    EXPECT_EQ(command.multiply, 2);
}

TEST_F(Profile, AnUnknownKeyIsRefusedWithItsLineAndTheNearestOne) {
    EXPECT_EQ(refusal("view = \"parts\"\n\ncolums = \"Item\"\n"),
              "p.toml:3: no key \"colums\"; did you mean \"columns\"?");
    EXPECT_EQ(refusal("zebra = 1"),
              "p.toml:1: no key \"zebra\"; the keys are the options of parts, without their "
              "dashes");
    EXPECT_EQ(refusal("profile = \"other.toml\""),
              "p.toml:1: no key \"profile\"; the keys are the options of parts, without their "
              "dashes");
    EXPECT_EQ(refusal("[units]\nlength = \"mm\""),
              "p.toml:1: units: expected a string, a number, true, false or an array");
}

TEST_F(Profile, AValueOfAnotherTypeIsRefusedWithItsLine) {
    EXPECT_EQ(refusal("\ndecimal-comma = \"yes\""),
              "p.toml:2: decimal-comma: expected true or false");
    EXPECT_EQ(refusal("view = true"), "p.toml:1: view: expected a string or a number");
    EXPECT_EQ(refusal("view = [\"parts\"]"), "p.toml:1: view: expected one value, not an array");
    EXPECT_EQ(refusal("view = 1979-05-27"),
              "p.toml:1: view: expected a string, a number, true, false or an array");
    EXPECT_EQ(refusal("view = \"tree\"").rfind("p.toml:1: view: tree not in {", 0), 0U)
        << refusal("view = \"tree\"");
    EXPECT_EQ(refusal("multiply = \"many\"").rfind("p.toml:1: ", 0), 0U);
}

TEST_F(Profile, WhatIsNoTomlIsRefusedWithItsLine) {
    EXPECT_EQ(refusal("view = \"parts\"\nfilter = [\n").rfind("p.toml:", 0), 0U);
    EXPECT_EQ(refusal("view = \"parts\"\nview = \"all\"\n").rfind("p.toml:2: ", 0), 0U)
        << refusal("view = \"parts\"\nview = \"all\"\n");
}

TEST_F(Profile, AnOutputIsAFileAndWhatHoldsForIt) {
    const workbench::Profile profile = workbench::parseProfile(
        "view = \"all\"\n[[output]]\nfile = \"a.csv\"\n[[output]]\nview = \"top\"\nfile = \"b.md\"",
        "p.toml");

    ASSERT_EQ(profile.outputs.size(), 2U);
    EXPECT_EQ(profile.entries.size(), 1U);
    EXPECT_EQ(profile.outputs[0].file, "a.csv");
    EXPECT_EQ(profile.outputs[0].entries.size(), 0U);
    EXPECT_EQ(profile.outputs[1].file, "b.md");
    EXPECT_EQ(profile.outputs[1].entries.at(0).key, "view");
    EXPECT_EQ(profile.outputs[1].entries.at(0).line, 5U);
}

TEST_F(Profile, AnOutputWithoutAFileIsRefused) {
    EXPECT_EQ(refusal("[[output]]\nview = \"top\""),
              "p.toml:1: an [[output]] needs a key \"file\"");
    EXPECT_EQ(refusal("[[output]]\nfile = 7"), "p.toml:2: file: expected the name of a file");
    EXPECT_EQ(refusal("output = \"a.csv\""),
              "p.toml:1: no key \"output\"; the keys are the "
              "options of parts, without their dashes");
    EXPECT_EQ(refusal("[output]\nfile = \"a.csv\""),
              "p.toml:1: output: expected tables, each below a line [[output]]");
}

TEST_F(Profile, ItsTextReadsBackTheSame) {
    command.app.parse({"3", "--multiply", "Say \"5\", \\ and \xC3\xA9", "--filter", "a=1",
                       "--filter", "Item,\"x\"", "--columns", "--decimal-comma"});
    const std::string text = profileText(command.app, command.keys);

    EXPECT_EQ(text,
              "view = 'parts'\n"
              "columns = 'Item,\"x\"'\n"
              "filter = ['a=1', 'Say \"5\", \\ and \xC3\xA9']\n"
              "multiply = 3\n"
              "decimal-comma = true\n");
    Command other;
    other.apply(text);
    EXPECT_EQ(profileText(other.app, other.keys), text);
    EXPECT_EQ(other.filters, command.filters);
}

}  // namespace
