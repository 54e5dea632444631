#include "tests/host/ui/host_test.h"
#include "tests/support/temporary_folder.h"

#include "host/base/utf8_path.h"
#include "host/design/design_file.h"
#include "host/design/document.h"
#include "host/design/outline.h"

#include <Fusion/FusionAll.h>

#include <string>

namespace host {
namespace {

using namespace adsk::core;
using namespace adsk::fusion;

HostSetup asDocumented() {
    HostSetup setup;
    setup.documented = kAsDocumented;
    return setup;
}

/// A host that does as is documented at every point.
class AsDocumented : public HostTest {
protected:
    AsDocumented() : HostTest(asDocumented()) {}
};

// CommandInputs_addStringValueInput and its like: the id is unique among the inputs of the command.
TEST_F(AsDocumented, ASecondInputOfAnIdIsNotMade) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        const Ptr<CommandInputs> tab = inputs->addTabCommandInput("tab", "")->children();
        EXPECT_TRUE(inputs->addStringValueInput("a", ""));
        EXPECT_FALSE(tab->addBoolValueInput("a", "", true));
        EXPECT_TRUE(tab->addStringValueInput("", ""));
        EXPECT_TRUE(tab->addStringValueInput("", ""));
        EXPECT_FALSE(inputs->addValueInput("a", "", "mm", ValueInput::createByReal(1)));
        EXPECT_FALSE(inputs->addIntegerSpinnerCommandInput("a", "", 0, 9, 1, 1));
        EXPECT_FALSE(inputs->addFloatSpinnerCommandInput("a", "", "mm", 0, 9, 1, 1));
        EXPECT_FALSE(inputs->addIntegerSliderCommandInput("a", "", 0, 9));
        EXPECT_EQ(tab->count(), 2U);
    });
}

TEST_F(AsDocumented, AnEmptyIdCountsWhereThatIsAskedForToo) {
    HostSetup setup = asDocumented();
    setup.documented.uniqueEmptyIds = true;
    startHost(setup);

    openWith([](const Ptr<CommandInputs>& inputs) {
        EXPECT_TRUE(inputs->addStringValueInput("", ""));
        EXPECT_FALSE(inputs->addStringValueInput("", ""));
    });
}

// Component_partNumber: an empty string resets it to the name.
TEST_F(AsDocumented, AnEmptyPartNumberIsTheNameAgain) {
    const Ptr<Document> document = makeDocument(parseOutline("Bolt"), Application::get());
    const Ptr<Component> bolt =
        designOf(document)->rootComponent()->occurrences()->item(0)->component();
    bolt->partNumber("B1");

    bolt->partNumber("");

    EXPECT_EQ(bolt->partNumber(), "Bolt");
    bolt->name("Nut");
    EXPECT_EQ(bolt->partNumber(), "Nut");
    endDocument(document);
}

// ListItem_name: for a button row it reads as an empty string, and cannot be set.
TEST_F(AsDocumented, AButtonOfARowHasNoName) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        const Ptr<ListItems> row = inputs->addButtonRowCommandInput("row", "", false)->listItems();
        const Ptr<ListItem> button = row->add("Caption", false);
        EXPECT_EQ(button->name(), "");
        EXPECT_FALSE(button->name("Other"));
        const Ptr<ListItems> list =
            inputs->addDropDownCommandInput("list", "", TextListDropDownStyle)->listItems();
        EXPECT_EQ(list->add("Item", false)->name(), "Item");
    });
}

// Palettes_UM: palettes are deleted when the workspace changes.
TEST_F(AsDocumented, AChangeOfWorkspaceDeletesThePalettes) {
    const Ptr<Palette> palette =
        ui()->palettes()->add("palette", "Name", "https://page.example/", true, true, true);

    activateWorkspace("CAMEnvironment");

    EXPECT_FALSE(palette->isValid());
    EXPECT_EQ(ui()->palettes()->count(), 0U);
}

// Command_validateInputs: when it is fired is up to the host.
TEST_F(AsDocumented, InputsAreValidatedBeforeTheChangeIsReportedToo) {
    const Ptr<CommandInputs> inputs = open([this](const Ptr<Command>& command) {
        on<OnValidate>(command->validateInputs(), [this](const auto&) { note("validate"); });
        traceChanges(command);
        command->commandInputs()->addBoolValueInput("flag", "", true);
    });
    noted();

    click(inputs->itemById("flag"));

    EXPECT_EQ(noted(), "validate flag validate");
}

// TableCommandInput_selectedRow: reports say that it is late in inputChanged.
TEST_F(AsDocumented, TheSelectedRowIsTheOldOneInTheNotification) {
    Ptr<TableCommandInput> table;
    const Ptr<CommandInputs> inputs = open([&](const Ptr<Command>& command) {
        table = command->commandInputs()->addTableCommandInput("table", "", 1, "1");
        on<OnChanged>(command->inputChanged(),
                      [&](const auto&) { note(std::to_string(table->selectedRow())); });
        for (int row = 0; row < 2; ++row) {
            table->addCommandInput(
                command->commandInputs()->addStringValueInput("cell" + std::to_string(row), ""),
                row, 0);
        }
    });

    pasteText(inputs->itemById("cell1"), "x");
    pasteText(inputs->itemById("cell0"), "y");

    EXPECT_EQ(noted(), "-1 1");
    EXPECT_EQ(table->selectedRow(), 0);
}

// ImportManager_importToNewDocument: the new document is not called like the file.
TEST_F(AsDocumented, AnImportedDocumentIsUntitled) {
    const test_support::TemporaryFolder folder;
    const auto file = folder.path() / "Frame.f3d";
    DesignData design = parseOutline("Bolt");
    design.name = "Frame";
    saveDesignFile(file, design);
    const Ptr<ImportManager> manager = Application::get()->importManager();

    const Ptr<Document> document =
        manager->importToNewDocument(manager->createFusionArchiveImportOptions(toUtf8(file)));

    ASSERT_TRUE(document);
    EXPECT_EQ(document->name(), "Untitled");
    EXPECT_EQ(designOf(document)->rootComponent()->name(), "Untitled");
}

// TableCommandInput_numberOfColumns: as many as are visible, by the inputs placed.
TEST_F(AsDocumented, ATableCountsTheColumnsInUse) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        const Ptr<TableCommandInput> table = inputs->addTableCommandInput("table", "", 9, "1:0:1");
        EXPECT_EQ(table->numberOfColumns(), 0);
        for (const int column : {0, 1, 2, 4}) {
            table->addCommandInput(inputs->addStringValueInput("c" + std::to_string(column), ""), 0,
                                   column);
        }
        EXPECT_EQ(table->numberOfColumns(), 3);
    });
}

}  // namespace
}  // namespace host
