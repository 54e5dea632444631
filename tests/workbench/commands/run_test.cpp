#include "tests/workbench/workbench_fixture.h"

#include "host/session/environment.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <string>
#include <vector>

using test_support::ProgramResult;

namespace {

namespace fs = std::filesystem;

/// Runs the sample add-in, and the module of the conformance tests, which throws in `run` where the
/// design is empty.
class RunCommand : public test_support::Workbench {
protected:
    static std::string built(const std::string& name) {
        return host::toUtf8(host::environment::programFolder().parent_path() / name);
    }

    static std::string sampleDesign() {
        return host::toUtf8(fs::path(SAMPLES_FOLDER) / "addin" / "bracket.design.json");
    }

    static ProgramResult runSample(const std::vector<std::string>& rest) {
        std::vector<std::string> arguments = {"run", built("PrefixNames"), sampleDesign()};
        arguments.insert(arguments.end(), rest.begin(), rest.end());
        return run(arguments);
    }
    /// Presses a button of an add-in that does what few do, with a design that has a bolt.
    ProgramResult runSeldom(const std::string& command, const std::vector<std::string>& rest = {}) {
        std::vector<std::string> arguments = {"run", built("Seldom"), design("Bolt"), "--press",
                                              command};
        arguments.insert(arguments.end(), rest.begin(), rest.end());
        return run(arguments);
    }

    /// What is printed below that step.
    std::string pressed(const std::string& command) {
        const std::string output = runSeldom(command).output;
        const std::string line = "press " + command + "\n";
        const std::size_t at = output.find(line);
        return at == std::string::npos ? output : output.substr(at + line.size());
    }
};

/// The lines of the page that are indented by four spaces, from the one after `before` on.
std::string shownBelow(const std::string& page, const std::string& before) {
    std::size_t at = page.find("    ", page.find(before));
    std::string lines;
    while (page.compare(at, 4, "    ") == 0) {
        const std::size_t end = page.find('\n', at);
        lines += page.substr(at + 4, end - at - 3);
        at = end + 1;
    }
    return lines;
}

}  // namespace

TEST_F(RunCommand, PrintsWhatThePageSays) {
    const std::string page =
        test_support::readFile(fs::path(SAMPLES_FOLDER).parent_path() / "docs" / "run.md");

    const ProgramResult result =
        runSample({"--press", "PrefixNames", "--set", "prefix=PG-", "--ok", "--expect-no-error"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, shownBelow(page, "\nprints\n"));
}

TEST_F(RunCommand, LeavesTheDesignAlone) {
    const std::string file = design("Bolt");
    const std::string before = test_support::readFile(host::fromUtf8(file));

    const ProgramResult result = run({"run", built("PrefixNames"), file, "--press", "PrefixNames",
                                      "--set", "prefix=PG-", "--ok"});

    EXPECT_NE(result.output.find("name \"Bolt\" is now \"PG-Bolt\""), std::string::npos);
    EXPECT_EQ(test_support::readFile(host::fromUtf8(file)), before);
}

TEST_F(RunCommand, ClosesTheDialogWithoutOkAndTakesThePreviewBack) {
    const ProgramResult result = runSample({"--press", "PrefixNames", "--set", "prefix=A"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output.substr(result.output.find("\ncancel\n")),
              "\ncancel\nstop\n  returned true\n");
}

TEST_F(RunCommand, InputsAreUsedInTheirOrder) {
    const ProgramResult result = runSample({"--press", "PrefixNames", "--set", "prefix=A", "--set",
                                            "assemblies=true", "--set", "prefix=B"});

    EXPECT_NE(result.output.find("\nset prefix=A\nset assemblies=true\nset prefix=B\n  change: "
                                 "component \"Plate\": name \"Plate\" is now \"BPlate\"\n"),
              std::string::npos)
        << result.output;
}

TEST_F(RunCommand, TakesAModuleByItsFile) {
    const std::string copy = path("renamed.so");
    fs::copy_file(host::fromUtf8(built("PrefixNames")) / "PrefixNames.dll", host::fromUtf8(copy));

    const ProgramResult result = run({"run", copy, "--expect-no-error"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output,
              "run\n  returned true\n  command: PrefixNames \"Prefix names\"\n"
              "stop\n  returned true\n");
}

TEST_F(RunCommand, TakesAModuleInItsFolderWithItsFolder) {
    const ProgramResult result = run({"run", built("PrefixNames") + "/PrefixNames.dll"});

    EXPECT_EQ(result.status, 0) << result.errors;
}

TEST_F(RunCommand, WhatIsThrownIsPrintedAndIsNoFailureUnasked) {
    const ProgramResult result = run({"run", built("Conformance")});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output,
              "run\n  returned false\n  the add-in threw std::exception in run\n"
              "stop\n  returned true\n  log: stopped\n");
}

TEST_F(RunCommand, ExpectNoErrorEndsWithWhatWasThrown) {
    const ProgramResult result = run({"run", built("Conformance"), "--expect-no-error"});

    EXPECT_EQ(result.status, 1);
    // The second one is that `run` returned false.
    EXPECT_EQ(result.errors,
              "tarnix-workbench: the add-in threw std::exception in run, and 1 more\n");
}

TEST_F(RunCommand, AModuleThatTerminatesIsNotStoppedAgain) {
    const ProgramResult result = run({"run", built("Conformance"), design("Bolt\nNut"), "--press",
                                      "ConformanceTerminate", "--expect-no-error"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(result.output.find("press ConformanceTerminate\n  no dialog is open\n"
                                 "  log: asked to terminate\n  log: stopped\n"),
              std::string::npos)
        << result.output;
    EXPECT_EQ(result.output.find("\nstop\n"), std::string::npos);
}

TEST_F(RunCommand, AMisuseIsPrintedWithItsEvent) {
    const ProgramResult result = run({"run", built("Tarnix"), "--expect-no-error"});

    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.output.find("  the add-in misused ToolbarControl::deleteMe (called on a "
                                 "deleted adsk::core::CommandControl) in stop\n"),
              std::string::npos)
        << result.output;
}

TEST_F(RunCommand, WrongUsageNamesWhatThereIs) {
    const ProgramResult command = runSample({"--press", "Prefix"});
    const ProgramResult input = runSample({"--press", "PrefixNames", "--set", "suffix=A"});
    const ProgramResult value = runSample({"--press", "PrefixNames", "--set", "assemblies=maybe"});

    EXPECT_EQ(command.status, 2);
    EXPECT_EQ(command.errors,
              "tarnix-workbench: --press Prefix: cannot press Prefix, which does not exist: the "
              "definitions are PrefixNames\n");
    EXPECT_EQ(input.status, 2);
    EXPECT_EQ(
        input.errors,
        "tarnix-workbench: --set suffix=A: the dialog has no input \"suffix\"; it has prefix, "
        "assemblies\n");
    EXPECT_EQ(value.status, 2);
    EXPECT_EQ(value.errors,
              "tarnix-workbench: --set assemblies=maybe: expected \"true\" or \"false\"\n");
}

TEST_F(RunCommand, OkThatCannotBePressedIsWrongUsage) {
    const ProgramResult invalid = runSample({"--press", "PrefixNames", "--ok"});
    const ProgramResult closed = runSample({"--ok"});

    EXPECT_EQ(invalid.status, 2);
    EXPECT_EQ(invalid.errors,
              "tarnix-workbench: --ok: cannot press OK: a handler of the dialog finds the inputs "
              "invalid\n");
    EXPECT_EQ(closed.status, 2);
    EXPECT_EQ(closed.errors, "tarnix-workbench: --ok: cannot press OK: no dialog is open\n");
}

TEST_F(RunCommand, WrongUsageAfterAnExceptionNamesItToo) {
    const ProgramResult result = run({"run", built("Conformance"), "--press", "Any"});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: --press Any: cannot press Any, which does not exist: there are no "
              "definitions; before that the add-in threw std::exception in run, and 1 more\n");
}

// The step was possible: what ends it is the add-in.
TEST_F(RunCommand, CommandsThatStartEachOtherWithoutEndAreTheAddinsFault) {
    const ProgramResult result = runSeldom("SeldomAgain");

    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.errors.find("tarnix-workbench: press SeldomAgain: the command SeldomAgain was "
                                 "started "),
              0U)
        << result.errors;
    EXPECT_NE(result.errors.find("it keeps starting itself\n"), std::string::npos);
}

TEST_F(RunCommand, EventsThatRunFiredAreHandledInItsStep) {
    const ProgramResult result = run({"run", built("Seldom"), "--expect-no-error"});

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output.find("run\n  returned true\n  the add-in threw std::runtime_error "
                                 "(handled) in SeldomFired\n"),
              0U)
        << result.output;
}

TEST_F(RunCommand, EventsThatACommandFiredAreHandledInItsStep) {
    EXPECT_EQ(pressed("SeldomFire"),
              "  no dialog is open\n"
              "  the add-in threw std::runtime_error (handled) in SeldomFired\n");
}

TEST_F(RunCommand, ACommandInThePlaceOfAnotherIsListed) {
    EXPECT_EQ(pressed("SeldomReplace"),
              "  no dialog is open\n"
              "  command: SeldomOther \"Other\"\n");
}

TEST_F(RunCommand, AMessageHasItsTitleAndItsLines) {
    EXPECT_EQ(pressed("SeldomSay"),
              "  no dialog is open\n"
              "  the add-in says in \"Heading\": One\n"
              "    Two\n");
}

TEST_F(RunCommand, TheDesignIsComparedWithItselfWhereAnotherBecomesActive) {
    EXPECT_EQ(pressed("SeldomOpen"),
              "  no dialog is open\n"
              "  change: another design is active: \"Another\"\n"
              "  change: component \"sample\": description \"\" is now \"first\"\n"
              "  change: design \"Another\" is new\n"
              "  change: design \"Another\": component \"Another\": description \"\" is now "
              "\"written\"\n");
}

TEST_F(RunCommand, WhatIsNotInATableIsRefusedWithWhatIs) {
    const ProgramResult cell = runSeldom("SeldomTable", {"--set", "table[2,0]=x"});
    const ProgramResult row = runSeldom("SeldomTable", {"--set", "table=1"});

    EXPECT_EQ(cell.status, 2);
    EXPECT_EQ(cell.errors,
              "tarnix-workbench: --set table[2,0]=x: the table \"table\" has no cell in row 2, "
              "column 0: its rows are 0 to 1, its columns 0 to 0, and places may be empty\n");
    EXPECT_EQ(row.status, 2);
    EXPECT_EQ(row.errors,
              "tarnix-workbench: --set table=1: cannot select row 1 of \"table\": the rows that "
              "show are 0\n");
}

TEST_F(RunCommand, WhatIsNoModuleIsRefused) {
    test_support::writeFile(folder.path() / "text.dll", "text");

    const ProgramResult missing = run({"run", "nothing-here"});
    const ProgramResult text = run({"run", path("text.dll")});
    const ProgramResult bare = run({"run", host::toUtf8(folder.path())});

    EXPECT_EQ(missing.status, 3);
    EXPECT_EQ(missing.errors,
              "tarnix-workbench: nothing-here: no such file; expected an add-in's folder or its "
              "module\n");
    EXPECT_EQ(text.status, 3);
    EXPECT_EQ(text.errors.find("tarnix-workbench: " + path("text.dll") +
                               ": the add-in's module cannot be loaded: "),
              0U)
        << text.errors;
    EXPECT_EQ(bare.status, 3);
    EXPECT_NE(bare.errors.find("no add-in there: "), std::string::npos) << bare.errors;
}

TEST_F(RunCommand, PrintsStepsAsJson) {
    const ProgramResult result =
        runSample({"--press", "PrefixNames", "--set", "prefix=A", "--ok", "--format", "json"});

    ASSERT_EQ(result.status, 0) << result.errors;
    const auto report = nlohmann::json::parse(result.output);
    std::vector<std::string> names;
    for (const auto& each : report["steps"]) {
        names.push_back(each["step"]);
    }
    EXPECT_EQ(report["faults"], 0);
    EXPECT_EQ(names,
              (std::vector<std::string>{"run", "press PrefixNames", "set prefix=A", "ok", "stop"}));
    EXPECT_EQ(report["steps"][2]["dialog"]["inputs"][0]["value"], "A");
    EXPECT_EQ(report["steps"][3]["dialog"], nullptr);
    EXPECT_EQ(report["steps"][3]["changes"][0],
              "component \"Plate\": name \"Plate\" is now \"APlate\"");
}
