#include "tests/host/ui/host_test.h"

#include "host/base/last_error.h"

namespace host {
namespace {

using namespace adsk::core;

class Definitions : public HostTest {
protected:
    Ptr<CommandDefinitions> all() { return ui()->commandDefinitions(); }
    Ptr<CommandDefinition> add(const std::string& id) {
        return all()->addButtonDefinition(id, "Caption", "Tooltip", "./Resources/Icon");
    }
};

TEST_F(Definitions, KeepWhatTheyWereMadeWith) {
    const Ptr<CommandDefinition> made = add("My_Command1");

    EXPECT_EQ(made->id(), "My_Command1");
    EXPECT_EQ(made->name(), "Caption");
    EXPECT_EQ(made->tooltip(), "Tooltip");
    EXPECT_EQ(made->resourceFolder(), "./Resources/Icon");
    EXPECT_EQ(all()->itemById("My_Command1"), made);
}

TEST_F(Definitions, AnIdInUseReturnsNullAndSetsTheLastError) {
    add("Command");

    EXPECT_FALSE(add("Command"));

    std::string text;
    EXPECT_EQ(adsk::core::Application::get()->getLastError(&text), BadApiCallError);
    EXPECT_EQ(text, "CommandDefinitions::addButtonDefinition: the id \"Command\" is in use");
    EXPECT_EQ(misused(), "CommandDefinitions::addButtonDefinition");
}

TEST_F(Definitions, AnIdHoldsLettersDigitsAndUnderscoresOnly) {
    EXPECT_FALSE(add("a command"));
    EXPECT_FALSE(add("caf\xC3\xA9"));
    EXPECT_FALSE(add(""));
    EXPECT_TRUE(add("_9aZ"));
    EXPECT_EQ(misused(),
              "CommandDefinitions::addButtonDefinition CommandDefinitions::addButtonDefinition "
              "CommandDefinitions::addButtonDefinition");
}

TEST_F(Definitions, ADeletedOneIsNotFoundAndItsIdIsFreeAgain) {
    const Ptr<CommandDefinition> made = add("Command");

    EXPECT_TRUE(made->deleteMe());

    EXPECT_FALSE(made->isValid());
    EXPECT_FALSE(all()->itemById("Command"));
    EXPECT_TRUE(add("Command"));
    EXPECT_FALSE(made->deleteMe());
    EXPECT_EQ(misused(), "CommandDefinition::deleteMe");
}

TEST_F(Definitions, AreCountedInOrderOfCreation) {
    const std::size_t native = HostSetup().commands.size() + 1;
    add("First");
    add("Second");

    EXPECT_EQ(all()->count(), native + 2);
    EXPECT_EQ(all()->item(0)->id(), "SelectCommand");
    EXPECT_EQ(all()->item(native + 1)->id(), "Second");
    EXPECT_FALSE(all()->item(native + 2));
}

TEST_F(Definitions, FireTheirOwnCreatedEventWithThemAsSender) {
    const Ptr<CommandDefinition> first = add("First");
    add("Second");
    on<OnCreated>(first->commandCreated(), [&](const Ptr<CommandCreatedEventArgs>& args) {
        note(args->command()->parentCommandDefinition()->id());
        EXPECT_EQ(args->firingEvent()->sender(), first);
    });

    pressCommand("First");
    pressCommand("Second");

    EXPECT_EQ(noted(), "First");
}

TEST_F(Definitions, AHandlerAddedTwiceIsCalledOnce) {
    const Ptr<CommandDefinition> made = add("Command");
    OnCreated handler([this](const auto&) { note("created"); });

    EXPECT_TRUE(made->commandCreated()->add(&handler));
    EXPECT_TRUE(made->commandCreated()->add(&handler));
    pressCommand("Command");

    EXPECT_EQ(noted(), "created");
}

TEST_F(Definitions, OnlyAnExistingOneCanBePressed) {
    add("There");

    EXPECT_EQ(misuseOf([] { pressCommand("Gone"); }),
              "cannot press Gone, which does not exist: the definitions are There");
    EXPECT_EQ(misuseOf([] { pressCommand(Ptr<CommandDefinition>()); }),
              "cannot press a command that does not exist: the definitions are There");
}

}  // namespace
}  // namespace host
