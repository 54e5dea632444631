#include "samples/product.h"
#include "tests/host/import/drafts.h"
#include "tests/host/import/step_text_edits.h"
#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

/// What the program does with the warnings of a STEP file.
namespace {

using drafts::product;
using drafts::usage;
using test_support::firstLines;
using test_support::ProgramResult;
using test_support::writeFile;

class StepFileWithFaults : public test_support::Workbench {
protected:
    std::string write(const std::string& text) {
        writeFile(folder.path() / "a.step", text);
        return path("a.step");
    }

    /// An assembly of two plates, the body of one of which has something else for its shell.
    static std::string plates(const std::string& shell) {
        const samples::Solid plate{{{samples::rectangle(10, 20), 5}}, {}};
        const samples::Material steel{"Steel", 7850};
        std::string text = samples::stepFile(
            "x", {{.key = "bar", .id = "B", .name = "Bar", .material = steel, .solid = plate},
                  {.key = "rod", .id = "R", .name = "Rod", .material = steel, .solid = plate},
                  {.key = "top", .id = "T", .name = "Top", .uses = {{"bar", {}}, {"rod", {}}}}});
        const std::string body = drafts::labelOf(text, "MANIFOLD_SOLID_BREP", 1);
        drafts::damage(text, body + "=MANIFOLD_SOLID_BREP('',#", ")",
                       body + "=MANIFOLD_SOLID_BREP(''," + shell + ")");
        return text;
    }

    void expectFailureIfStrict(const std::string& file, const std::string& warning) {
        const ProgramResult lenient = run({"bom", file});
        const ProgramResult strict = run({"bom", file, "--strict", "--out", out(), "--save"});

        EXPECT_EQ(lenient.status, 0);
        EXPECT_NE(lenient.errors.find(warning), std::string::npos) << lenient.errors;
        EXPECT_EQ(strict.status, 1);
        EXPECT_NE(strict.errors.find(warning), std::string::npos) << strict.errors;
        EXPECT_TRUE(strict.errors.ends_with("which --strict makes a failure\n")) << strict.errors;
        EXPECT_EQ(strict.output, "");
        EXPECT_FALSE(std::filesystem::exists(host::fromUtf8(out())));
        EXPECT_FALSE(std::filesystem::exists(host::fromUtf8(path("a.design.json"))));
    }
};

TEST_F(StepFileWithFaults, HasItsWarningsInJson) {
    const std::string file = write(
        drafts::step(product(10, "A", "Cart") + product(20, "W", "Wheel") + usage(30, 10, 20)));

    const ProgramResult result = run({"bom", file, "--format", "json"});

    EXPECT_EQ(result.status, 0) << result.errors;
    const auto warnings = nlohmann::json::parse(result.output)["warnings"];
    ASSERT_EQ(warnings.size(), 1U) << result.output;
    EXPECT_EQ(warnings[0]["code"], "no-placement");
    EXPECT_EQ("warning: " + warnings[0]["text"].get<std::string>() + "\n",
              firstLines(result.errors, 1));
}

TEST_F(StepFileWithFaults, IsAFailureIfStrictWhereAReferenceIsMissing) {
    expectFailureIfStrict(write(plates("#999999")), "missing");
}

TEST_F(StepFileWithFaults, IsAFailureIfStrictWhereABodyIsBroken) {
    expectFailureIfStrict(write(plates("$")), "cannot be built whole");
}

}  // namespace
