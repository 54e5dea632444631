#include "tests/support/text.h"
#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// The signs of the list follow the locale; on Windows the console takes all of them.
namespace {

using test_support::firstLines;
using test_support::kSmallDesign;
using test_support::ProgramResult;
using test_support::text;

using BomSigns = test_support::Workbench;

TEST_F(BomSigns, AreOfAsciiWhereTheLocaleHasNoOthers) {
    variables.set("LC_ALL", "C");

    const ProgramResult result = run({"bom", design(kSmallDesign), "--no-columns"});

    EXPECT_EQ(firstLines(result.output, 4), text(R"(
           Pos.  Part Number  BOM Structure
        -  ----  -----------  -------------
        .     1  Frame        Produce
        .     2  Bolt         Produce
        )") + "\n");
}

TEST_F(BomSigns, OfOtherTablesAreOfAsciiLikewise) {
    variables.set("LC_ALL", "C");
    const std::string file = design("Bolt  material=Steel:0.00785 box=10x10x10");

    for (const std::vector<std::string>& command :
         {std::vector<std::string>{"info", file}, {"dialog", "QM_TX_BOM", file}, {"commands"}}) {
        const ProgramResult result = run(command);
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_EQ(result.output.find("\u2500\u2500\u2500\u2500\u2500\u2500"), std::string::npos)
            << result.output;
        EXPECT_NE(result.output.find("------"), std::string::npos) << result.output;
    }
}

}  // namespace
