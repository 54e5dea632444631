#include "tests/workbench/workbench_fixture.h"

#include "host/session/environment.h"

#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <string>
#include <vector>

/// Each subcommand reports that its output could not be written.
namespace {

class FullOutput : public test_support::Workbench,
                   public testing::WithParamInterface<std::vector<std::string>> {};

TEST_P(FullOutput, IsReported) {
    const std::string file = design(test_support::kSmallDesign);
    std::vector<std::string> arguments = GetParam();
    for (std::string& argument : arguments) {
        argument = argument == "FILE" ? file : argument;
    }

    const int status =
        test_support::runRedirected(host::environment::programFolder() / "tarnix-workbench",
                                    arguments, "/dev/full", folder.path() / "errors");

    EXPECT_EQ(status, 5);
    EXPECT_EQ(test_support::readFile(folder.path() / "errors"),
              "tarnix-workbench: cannot write to stdout\n");
}

using OutputThatFails = test_support::Workbench;

TEST_F(OutputThatFails, KeepsNothing) {
    const std::string file = design(test_support::kSmallDesign);
    const std::string old = test_support::readFile(file);
    const auto runFull = [&](const std::vector<std::string>& arguments) {
        return test_support::runRedirected(host::environment::programFolder() / "tarnix-workbench",
                                           arguments, "/dev/full", folder.path() / "errors");
    };

    EXPECT_EQ(runFull({"bom", file, "--out", out(), "--column", "Mass", "--keep-columns", "--set",
                       "1:Part Number=F", "--save"}),
              5);
    EXPECT_EQ(
        runFull({"properties", file, "--component", "Frame:1", "--set", "Part Number=F", "--save"}),
        5);
    EXPECT_EQ(runFull({"configure", "--support-url", "http://other.example/"}), 5);

    EXPECT_EQ(test_support::readFile(file), old);
    EXPECT_FALSE(std::filesystem::exists(out()));
    EXPECT_FALSE(std::filesystem::exists(settingsFile()));
}

INSTANTIATE_TEST_SUITE_P(
    Commands, FullOutput,
    testing::Values(
        std::vector<std::string>{"bom", "FILE"}, std::vector<std::string>{"--help"},
        std::vector<std::string>{"--version"}, std::vector<std::string>{"configure", "--help"},
        std::vector<std::string>{"info", "FILE"}, std::vector<std::string>{"properties", "FILE"},
        std::vector<std::string>{"configure"}, std::vector<std::string>{"helpdesk", "system-info"},
        std::vector<std::string>{"move-to-origin", "FILE", "--save"},
        std::vector<std::string>{"parts", "FILE"},
        std::vector<std::string>{"parts", "FILE", "--format", "json"},
        std::vector<std::string>{"compare", "FILE", "FILE"}, std::vector<std::string>{"commands"},
        std::vector<std::string>{"dialog", "QM_TX_BOM", "FILE"},
        std::vector<std::string>{"manual"}),
    [](const auto& tested) {
        std::string name;
        for (const std::string& word : tested.param) {
            name += word;
        }
        std::erase_if(name, [](unsigned char each) { return std::isalnum(each) == 0; });
        return name;
    });

}  // namespace
