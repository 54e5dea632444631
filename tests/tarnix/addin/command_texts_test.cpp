#include "tests/tarnix/addin/addin_ui_fixture.h"

#include <gtest/gtest.h>

#include <string>

namespace test_support {
namespace {

class CommandTexts : public AddinUiTest, public testing::WithParamInterface<RegisteredCommand> {};

TEST_P(CommandTexts, ComeToTheHost) {
    const RegisteredCommand& command = GetParam();

    EXPECT_EQ(texts(command.id),
              std::string(command.name) + "\n" + command.tooltip + "\n" + command.resourceFolder);
}

const auto nameOf = [](const auto& test) { return std::string(test.param.id); };

INSTANTIATE_TEST_SUITE_P(Main, CommandTexts, testing::ValuesIn(kMainCommands), nameOf);
INSTANTIATE_TEST_SUITE_P(Helpdesk, CommandTexts, testing::ValuesIn(kHelpdeskCommands), nameOf);

}  // namespace
}  // namespace test_support
