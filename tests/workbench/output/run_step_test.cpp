#include "workbench/output/run_step.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string shown(const std::string& text, const std::string& title) {
    host::Message message;
    message.text = text;
    message.title = title;
    workbench::RunStep step;
    step.messages = {message};
    return workbench::asText(step);
}

TEST(RunStepText, AMessageBeginsWithItsTitle) {
    EXPECT_EQ(shown("Done", "Export"), "  the add-in says in \"Export\": Done\n");
    EXPECT_EQ(shown("Done", ""), "  the add-in says: Done\n");
}

TEST(RunStepText, FurtherLinesAreIndentedAndEmptyOnesLeftOut) {
    EXPECT_EQ(shown("One\r\n\nTwo\n", ""), "  the add-in says: One\n    Two\n");
}

TEST(RunStepText, LinesOfTheLogAreShownLikewise) {
    workbench::RunStep step;
    step.log = {"One\nTwo", "Three"};

    EXPECT_EQ(workbench::asText(step), "  log: One\n    Two\n  log: Three\n");
}

}  // namespace
