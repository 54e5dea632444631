#include "workbench/output/output_names.h"

#include "tests/support/temporary_folder.h"
#include "tests/workbench/refusal.h"

#include <gtest/gtest.h>

namespace {

using test_support::refusal;
using workbench::checkOutputNames;
using workbench::outputName;

TEST(OutputNames, WordsInBracesStandForPartsOfTheDesignsName) {
    EXPECT_EQ(outputName("{stem}-parts.csv", "in/Gear.v2.step"), "Gear.v2-parts.csv");
    EXPECT_EQ(outputName("{dir}/{name}.csv", "in/Gear.step"), "in/Gear.step.csv");
    EXPECT_EQ(outputName("{dir}/{stem}.csv", "Gear.step"), "./Gear.csv");
    EXPECT_EQ(outputName("{stem}.csv", "-"), "stdin.csv");
    EXPECT_EQ(outputName("list.csv", "Gear.step"), "list.csv");
    EXPECT_EQ(outputName("odd{.csv", "Gear.step"), "odd{.csv");
}

TEST(OutputNames, AnotherWordIsRefusedWithTheNearestOne) {
    EXPECT_EQ(refusal([] { outputName("{stm}.csv", "a.step"); }),
              "{stm}.csv: no such word {stm}; did you mean {stem}?");
    EXPECT_EQ(refusal([] { outputName("{zebra}.csv", "a.step"); }),
              "{zebra}.csv: no such word {zebra}; there are {stem}, {name} and {dir}");
}

TEST(OutputNames, TwoOutputsOfOneNameAreRefused) {
    const test_support::TemporaryFolder folder;
    const std::string list = (folder.path() / "list.csv").string();
    const std::string same = (folder.path() / "sub" / ".." / "list.csv").string();

    EXPECT_EQ(refusal([&] {
                  checkOutputNames({list, same}, {"a.step", "b.step"}, {});
              }),
              same +
                  ": would be written twice, for a.step and for b.step; name them differently, "
                  "as in {dir}/{stem}.csv");
    EXPECT_NO_THROW(checkOutputNames({list, list + "2"}, {"a.step", "b.step"}, {}));
}

TEST(OutputNames, ADesignIsNotOverwritten) {
    const test_support::TemporaryFolder folder;
    const std::string design = folder.write("a.step", "");

    EXPECT_EQ(refusal([&] { checkOutputNames({design}, {"a.step"}, {design}); }),
              design + ": is one of the designs; the output needs a file of its own");
}

}  // namespace
