#include "tests/support/text.h"
#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

using test_support::isOneLine;
using test_support::kKnownStructures;
using test_support::ProgramResult;
using test_support::readFile;
using test_support::text;
using test_support::Workbench;

namespace {

class Properties : public Workbench {
protected:
    static constexpr const char* kAssembly = R"(
        Gearbox
          Bolt  number=B-1 description=long structure=Buy property=Colour/red
        Nut)";

    void addProperty(const std::string& name) {
        const ProgramResult result = run({"user-properties", "add", name});
        ASSERT_EQ(result.status, 0) << result.errors;
    }
};

}  // namespace

TEST_F(Properties, AreThoseOfTheRootComponent) {
    const ProgramResult result = run({"properties", design(kAssembly)});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, text(R"(
        Component      sample
        BOM Structure
        Part Number    sample
        Part Name      sample
        Description
        Full Path
        )") + "\n");
}

TEST_F(Properties, AreThoseOfAComponentByItsPath) {
    addProperty("Colour");

    const ProgramResult result =
        run({"properties", design(kAssembly), "--component", "Gearbox:1+Bolt:1"});

    EXPECT_EQ(result.output, text(R"(
        Component      Gearbox:1+Bolt:1
        BOM Structure  Buy
        Part Number    B-1
        Part Name      Bolt
        Description    long
        Full Path
        Colour         red
        )") + "\n");
}

TEST_F(Properties, ShowWhereAFileIsInTheUsersData) {
    const std::string file = design(kAssembly);
    const std::filesystem::path project = folder.path() / "projects" / "Alfa" / "Designs";
    std::filesystem::create_directories(project);
    std::filesystem::copy(host::fromUtf8(file), project / "Gearbox.design.json");

    const ProgramResult result = run({"properties", host::toUtf8(project / "Gearbox.design.json"),
                                      "--data", host::toUtf8(folder.path() / "projects")});

    EXPECT_NE(result.output.find("Full Path      ThisDoc: Alfa // Designs // Gearbox\n"),
              std::string::npos)
        << result.output << result.errors;
}

TEST_F(Properties, AreEditedAndSavedThroughTheDialog) {
    addProperty("Colour");
    const std::string file = design(kAssembly);

    const ProgramResult result = run(
        {"properties", file, "--component", "Gearbox:1+Bolt:1", "--set", "Part Name=Screw", "--set",
         "Part Number=S=1", "--set", "Colour=", "--set", "BOM Structure=Produce", "--save"});

    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, text(R"(
        Component      Gearbox:1+Screw:1
        BOM Structure  Produce
        Part Number    S=1
        Part Name      Screw
        Description    long
        Full Path
        Colour

        Saved: )") + file + "\n");
    const ProgramResult again = run({"properties", file, "--component", "Gearbox:1+Screw:1"});
    EXPECT_EQ(again.output, result.output.substr(0, result.output.find("\nSaved")));
}

TEST_F(Properties, AreSavedInAFileNamedWithoutAFolder) {
    design(kAssembly);
    const std::filesystem::path startedIn = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());

    const ProgramResult result =
        run({"properties", "sample.design.json", "--set", "Description=new", "--save", "b.json"});

    std::filesystem::current_path(startedIn);
    EXPECT_EQ(result.errors, "");
    EXPECT_NE(result.output.find("Saved: b.json\n"), std::string::npos) << result.output;
    EXPECT_NE(readFile(folder.path() / "b.json").find("\"new\""), std::string::npos);
}

TEST_F(Properties, ThatCannotBeSavedLeaveNothing) {
    test_support::writeFile(host::fromUtf8(out()), "no folder");

    const ProgramResult result = run(
        {"properties", design(kAssembly), "--set", "Description=new", "--save", out() + "/b.json"});

    EXPECT_EQ(result.status, 5);
    EXPECT_EQ(result.output, "");
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
}

TEST_F(Properties, AreSeenByThePartsList) {
    addProperty("Colour");
    const std::string file = design("Bolt");
    run({"properties", file, "--component", "Bolt:1", "--set", "Colour=blue", "--set",
         "Part Number=B-7", "--save"});

    const ProgramResult result = run({"bom", file, "--column", "Colour"});

    EXPECT_NE(result.output.find("B-7"), std::string::npos) << result.output << result.errors;
    EXPECT_NE(result.output.find("blue"), std::string::npos);
}

TEST_F(Properties, AreNotChangedWithoutSave) {
    const std::string file = design(kAssembly);
    const std::string old = readFile(host::fromUtf8(file));

    const ProgramResult result = run({"properties", file, "--set", "Description=new"});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "tarnix-workbench: --set requires --save: without it the edits are lost when the "
              "dialog closes\n");
    EXPECT_EQ(readFile(host::fromUtf8(file)), old);
}

TEST_F(Properties, WithAnUnknownNameAreRefusedWithTheKnownOnes) {
    const std::string file = design(kAssembly);
    const std::string old = readFile(host::fromUtf8(file));

    const ProgramResult result = run({"properties", file, "--set", "Colour=red", "--save"});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(
        result.errors,
        "tarnix-workbench: --set \"Colour\": no such property; available: "
        "\"BOM Structure\", \"Part Number\", \"Part Name\", \"Description\", \"Full Path\"\n");
    EXPECT_EQ(readFile(host::fromUtf8(file)), old);
}

TEST_F(Properties, WithAnUnknownStructureAreRefused) {
    const ProgramResult result =
        run({"properties", design(kAssembly), "--set", "BOM Structure=Sell", "--save"});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              std::string("tarnix-workbench: --set \"BOM Structure=Sell\": ") + kKnownStructures);
}

TEST_F(Properties, ThatTheDesignDoesNotTakeAreReportedAndNothingIsSaved) {
    const std::string file = design(kAssembly);
    const std::string old = readFile(host::fromUtf8(file));

    const ProgramResult result =
        run({"properties", file, "--set", "Description=new", "--set", "Part Name=X", "--save"});

    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(
        result.errors,
        "tarnix-workbench: --set \"Part Name=X\": the design would hold \"sample\" instead\n");
    EXPECT_EQ(readFile(host::fromUtf8(file)), old);
}

TEST_F(Properties, ThatAreSetTwiceHaveTheLastValue) {
    const ProgramResult result = run({"properties", design(kAssembly), "--set", "Description=a",
                                      "--set", "QEMA_Description=b", "--save"});

    EXPECT_EQ(result.errors, "");
    EXPECT_NE(result.output.find("Description    b\n"), std::string::npos) << result.output;
}

TEST_F(Properties, OfAComponentThatIsNotThereAreRefused) {
    const ProgramResult result =
        run({"properties", design(kAssembly), "--component", "Gearbox:1+Rivet:1"});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: there is no occurrence \"Gearbox:1+Rivet:1\": there is "
              "\"Gearbox:1+Bolt:1\"\n");
}

TEST_F(Properties, CannotBeSetWhereTheDialogOnlyShows) {
    const ProgramResult result =
        run({"properties", design(kAssembly), "--set", "Full Path=x", "--save"});

    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
    EXPECT_NE(result.errors.find("read-only"), std::string::npos) << result.errors;
}
