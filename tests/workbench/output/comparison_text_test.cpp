#include "workbench/output/comparison_text.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using nlohmann::json;

namespace {

/// A mirror image: volume and area are the same, so there are no two values to show.
parts::ListComparison mirrored() {
    return {.before = "old.step",
            .after = "new.step",
            .changes = {{.kind = parts::ChangeKind::Shape, .item = "Bracket", .column = "Shape"}},
            .unchanged = 3};
}

TEST(ComparisonText, AShapeThatChangedUnderItsNumberIsInMarkdown) {
    EXPECT_EQ(workbench::comparisonMarkdown(mirrored(), {}),
              "| Change | Item | What | Old | New |\n"
              "| --- | --- | --- | --- | --- |\n"
              "| shape | Bracket | Shape |  |  |\n\n"
              "0 added, 0 removed, 1 change in other lines, 3 unchanged\n");
}

TEST(ComparisonText, WhatWouldBeMarkupIsEscapedAsInAList) {
    parts::ListComparison comparison = mirrored();
    comparison.changes[0].item = "![x](y)~a~&lt;$1+2\tb";

    EXPECT_NE(workbench::comparisonMarkdown(comparison, {})
                  .find("| \\!\\[x\\]\\(y\\)\\~a\\~\\&lt;\\$1\\+2 b |"),
              std::string::npos)
        << workbench::comparisonMarkdown(comparison, {});
}

TEST(ComparisonText, AShapeThatChangedUnderItsNumberIsInJson) {
    EXPECT_EQ(json::parse(workbench::comparisonJson(mirrored())),
              (json{{"format", "tarnix-comparison"},
                    {"version", 1},
                    {"old", "old.step"},
                    {"new", "new.step"},
                    {"unchanged", 3},
                    {"changes", json::array({{{"change", "shape"},
                                              {"item", "Bracket"},
                                              {"column", "Shape"},
                                              {"old", nullptr},
                                              {"new", nullptr}}})}}));
}

}  // namespace
