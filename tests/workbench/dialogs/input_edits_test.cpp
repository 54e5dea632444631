#include "workbench/dialogs/input_edits.h"

#include "workbench/cli/exit_code.h"

#include <gtest/gtest.h>

#include <string>

using workbench::Failure;
using workbench::InputEdit;
using workbench::parseInputEdit;

namespace {

std::string refusalOf(const std::string& text) {
    try {
        static_cast<void>(parseInputEdit(text));
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "accepted";
}

TEST(InputEdits, AnInputAndItsValueAreSeparatedByTheFirstEqualsSign) {
    EXPECT_EQ(parseInputEdit("name=a=b"), (InputEdit{.input = "name", .cell = {}, .value = "a=b"}));
    EXPECT_EQ(parseInputEdit("name="), (InputEdit{.input = "name", .cell = {}, .value = ""}));
}

TEST(InputEdits, ACellIsNamedByItsTableRowAndColumn) {
    EXPECT_EQ(
        parseInputEdit("table[12,3]=x"),
        (InputEdit{
            .input = "table", .cell = InputEdit::Cell{.row = 12, .column = 3}, .value = "x"}));
}

TEST(InputEdits, AnythingElseIsRefused) {
    EXPECT_EQ(refusalOf("name"), "--set name: expected INPUT=VALUE");
    EXPECT_EQ(refusalOf("=x"), "--set =x: expected INPUT=VALUE");
    EXPECT_EQ(refusalOf("table[1]=x"), "--set table[1]=x: expected TABLE[ROW,COLUMN]=VALUE");
    EXPECT_EQ(refusalOf("table[-1,2]=x"), "--set table[-1,2]=x: expected TABLE[ROW,COLUMN]=VALUE");
    EXPECT_EQ(refusalOf("table[1,2=x"), "--set table[1,2=x: expected TABLE[ROW,COLUMN]=VALUE");
    EXPECT_EQ(refusalOf("[1,2]=x"), "--set [1,2]=x: expected TABLE[ROW,COLUMN]=VALUE");
}

}  // namespace
