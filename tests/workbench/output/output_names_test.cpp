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

/// What is said of an output in the place of a file.
std::string refusalToReplace(const std::string& name, const std::string& content) {
    const test_support::TemporaryFolder folder;
    const std::string file = folder.write(name, content);
    const std::string said = refusal([&] { checkOutputNames({file}, {"a.step"}, {"a.step"}); });
    return said.empty() ? said : said.substr(said.rfind(": is a "));
}

TEST(OutputNames, AnyOtherDesignIsNotOverwritten) {
    const std::string wanted = ": is a design; the output needs a file of its own";
    const std::string iges = std::string(72, ' ') + "S      1\n";

    EXPECT_EQ(
        refusalToReplace("b.design.json", "{\"name\": {}, \"format\": \"standin-host-design\"}"),
        wanted);
    EXPECT_EQ(refusalToReplace("list.csv", "ISO-10303-21;\nHEADER;\n"), wanted);
    EXPECT_EQ(refusalToReplace("list.csv", iges), wanted);
    EXPECT_EQ(refusalToReplace("b.step.gz", "\x1F\x8B packed"), wanted);
}

TEST(OutputNames, AListThatIsThereIsReplaced) {
    EXPECT_EQ(refusalToReplace("list.json",
                               "{\"format\": \"tarnix-parts\", \"rows\": "
                               "[{\"format\": \"standin-host-design\"}]}"),
              "");
    // Column 73 of the captions is the S of "Size".
    EXPECT_EQ(refusalToReplace("list.csv", std::string(72, 'x') + "Size [mm],Mass [kg]\r\n"), "");
    EXPECT_EQ(refusalToReplace("b.design.json", ""), "");
}

}  // namespace
