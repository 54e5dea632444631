#include "tests/support/text.h"
#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

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

}  // namespace
