#include "tarnix/addin/addin_command.h"

#include "host/base/gate.h"
#include "tests/tarnix/addin/registration_fixture.h"

#include <gtest/gtest.h>

#include <exception>
#include <memory>

namespace test_support {
namespace {

using namespace adsk::core;

class CountingHandler final : public CommandCreatedEventHandler {
public:
    explicit CountingHandler(int& count) : count_(count) {}
    void notify(const Ptr<CommandCreatedEventArgs>& /*eventArgs*/) override { ++count_; }

private:
    int& count_;
};

class AddinCommand : public RegistrationTest {
protected:
    std::unique_ptr<tarnix::AddinCommand> makeCommand() {
        return std::make_unique<tarnix::AddinCommand>(
            Application::get(),
            tarnix::CommandTexts{
                .id = "TestCommand", .name = "Test", .tooltip = "Mine", .resourceFolder = "folder"},
            std::make_unique<CountingHandler>(created));
    }

    int created = 0;
};

TEST_F(AddinCommand, LastsInTheHostAsLongAsItsObject) {
    auto command = makeCommand();
    EXPECT_EQ(texts("TestCommand"), text(R"(
        Test
        Mine
        folder)"));

    command.reset();

    EXPECT_FALSE(definition("TestCommand"));
}

TEST_F(AddinCommand, IsDefinedOnce) {
    const auto command = makeCommand();
    const Ptr<CommandDefinition> made = command->commandDefinition;

    command->createDefinition();
    session->press("TestCommand");

    EXPECT_TRUE(command->commandDefinition == made);
    EXPECT_EQ(created, 1);
}

TEST_F(AddinCommand, HasNoDefinitionForAnIdInUse) {
    faults.expectMisuse("CommandDefinitions::addButtonDefinition",
                        "the id \"TestCommand\" is in use");
    const auto first = makeCommand();

    const auto second = makeCommand();
    session->press("TestCommand");

    EXPECT_FALSE(second->commandDefinition);
    EXPECT_EQ(created, 1);
}

TEST_F(AddinCommand, ThrowsWithoutTheEventAndLeavesNothing) {
    const host::gate::Module asModule;
    host::gate::refuse("CommandDefinition::commandCreated", 1);

    EXPECT_THROW(makeCommand(), std::exception);

    EXPECT_FALSE(definition("TestCommand"));
}

}  // namespace
}  // namespace test_support
