#include "tests/host/ui/host_test.h"

#include "host/base/gate.h"
#include "host/design/document.h"
#include "host/design/geometry_objects.h"

#include <Fusion/FusionAll.h>

namespace host {
namespace {

using namespace adsk::core;
using namespace adsk::fusion;

/// Commands that change the design, and a host that takes changes back.
class ModelHistory : public HostWithDesign {
protected:
    ModelHistory() : HostWithDesign("Frame  attribute=G/a/1\n  Bolt  material=Steel:0.00785\nNut") {
        root = designOf(document)->rootComponent();
        frame = root->occurrences()->item(0);
        bolt = frame->childOccurrences()->item(0)->component();
    }

    /// All that a handler may change, each once.
    void changeAll() {
        bolt->name("Screw");
        bolt->partNumber("M8");
        bolt->description("changed");
        bolt->material()->name("Zinc");
        bolt->attributes()->add("G", "b", "2");
        const Ptr<Attributes> attributes = frame->component()->attributes();
        attributes->itemByName("G", "a")->value("3");
        attributes->itemByName("G", "a")->deleteMe();
        attributes->add("G", "c", "4");
        frame->isGrounded(true);
        root->transformOccurrences({frame}, {moved()}, false);
        document->name("Renamed");
    }

    static Ptr<Matrix3D> moved() {
        return makeMatrix({{1, 0, 0, 5, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}});
    }

    /// The design as a string, every value of it that `changeAll` changes.
    [[nodiscard]] std::string text() const {
        const DesignData data = snapshot(document);
        std::string text = data.name;
        for (const ComponentData& each : data.components) {
            text += "|" + each.name + "," + each.partNumber + "," + each.description + "," +
                    (each.material ? each.material->name : "");
            for (const AttributeData& attribute : each.attributes) {
                text += " " + attribute.group + "/" + attribute.name + "=" + attribute.value;
            }
            for (const OccurrenceData& child : each.children) {
                text += child.grounded ? " grounded" : "";
                text += " " + std::to_string(static_cast<int>(child.transform.cells[3]));
            }
        }
        return text;
    }

    /// A dialog with a box, whose preview and execution change the description of the bolt.
    void openDialogThatDescribes(bool previewIsValid) {
        open([this, previewIsValid](const Ptr<Command>& command) {
            command->commandInputs()->addBoolValueInput("box", "Box", true);
            on<OnCommand>(command->executePreview(), [this, previewIsValid](const auto& args) {
                note("sees:" + bolt->description());
                bolt->description("preview");
                args->isValidResult(previewIsValid);
            });
            on<OnCommand>(command->execute(), [this](const auto&) {
                note("executes:" + bolt->description());
                bolt->description("executed");
            });
        });
    }

    Ptr<Component> root;
    Ptr<Occurrence> frame;
    Ptr<Component> bolt;
};

// CommandEventArgs_executeFailed: true aborts the command, and what it changed is undone.
TEST_F(ModelHistory, AFailedExecutionChangesNothing) {
    const std::string before = text();
    std::string inside;
    define("Fails", [&](const Ptr<Command>& command) {
        on<OnCommand>(command->execute(), [&](const auto& args) {
            changeAll();
            inside = text();
            args->executeFailed(true);
        });
    });

    pressCommand("Fails");

    // All are of the same steel, so all are of zinc then.
    EXPECT_EQ(inside,
              "Renamed|Renamed,Renamed,,Zinc grounded 5 0|Frame,Frame,,Zinc G/c=4 0|"
              "Screw,M8,changed,Zinc G/b=2|Nut,Nut,,Zinc");
    EXPECT_EQ(text(), before);
    EXPECT_FALSE(bolt->attributes()->itemByName("G", "b"));
}

TEST_F(ModelHistory, WhatAnExecutionDidStaysWhenItSucceeds) {
    define("Works", [&](const Ptr<Command>& command) {
        on<OnCommand>(command->execute(), [&](const auto&) { bolt->description("kept"); });
    });
    define("Fails", [&](const Ptr<Command>& command) {
        on<OnCommand>(command->execute(), [&](const auto& args) {
            bolt->name("Screw");
            args->executeFailed(true);
        });
    });

    pressCommand("Works");
    pressCommand("Fails");

    EXPECT_EQ(bolt->description(), "kept");
    EXPECT_EQ(bolt->name(), "Bolt");
    EXPECT_TRUE(bolt->name("Screw"));
    EXPECT_EQ(bolt->name(), "Screw");
}

// Commands_UM: executePreview after each change of a valid dialog; it is taken back before the next
// one and before execute.
TEST_F(ModelHistory, APreviewIsTakenBackBeforeTheNextAndBeforeExecute) {
    openDialogThatDescribes(/*previewIsValid=*/false);
    EXPECT_EQ(bolt->description(), "preview");

    click(openDialog()->commandInputs()->itemById("box"));
    EXPECT_EQ(bolt->description(), "preview");
    pressOk();

    EXPECT_EQ(noted(), "sees: sees: executes:");
    EXPECT_EQ(bolt->description(), "executed");
}

TEST_F(ModelHistory, CancelTakesBackThePreview) {
    openDialogThatDescribes(/*previewIsValid=*/false);
    EXPECT_TRUE(showsPreview());

    pressCancel();

    EXPECT_FALSE(showsPreview());
    EXPECT_EQ(bolt->description(), "");
}

// CommandEventArgs_isValidResult: the preview takes the place of the execution.
TEST_F(ModelHistory, AValidPreviewStaysAndNothingIsExecuted) {
    openDialogThatDescribes(/*previewIsValid=*/true);

    pressOk();

    EXPECT_EQ(noted(), "sees:");
    EXPECT_EQ(bolt->description(), "preview");
}

TEST_F(ModelHistory, APreviewIsShownOnlyWhileTheInputsAreValid) {
    open([this](const Ptr<Command>& command) {
        command->commandInputs()->addBoolValueInput("box", "Box", true);
        on<OnValidate>(command->validateInputs(), [](const Ptr<ValidateInputsEventArgs>& args) {
            const Ptr<BoolValueCommandInput> box = args->inputs()->itemById("box");
            args->areInputsValid(box->value());
        });
        on<OnCommand>(command->executePreview(), [this](const auto&) { note("preview"); });
    });
    EXPECT_EQ(noted(), "");

    click(openDialog()->commandInputs()->itemById("box"));

    EXPECT_EQ(noted(), "preview");
}

/// Commands that add components.
class AddedComponents : public ModelHistory {
protected:
    /// Adds a component to `owner`, and one to that.
    static Ptr<Occurrence> addTwo(const Ptr<Component>& owner) {
        const Ptr<Occurrence> outer = owner->occurrences()->addNewComponent(moved());
        outer->component()->description("new");
        outer->component()->occurrences()->addNewComponent(moved());
        return outer;
    }

    [[nodiscard]] std::string names() const {
        std::string names;
        for (const ComponentData& each : snapshot(document).components) {
            names += each.name + " ";
        }
        return names;
    }
};

// Occurrences_addNewComponent, in a preview: taken back before the next one, and before execute.
TEST_F(AddedComponents, ArePreviewedUnderTheSameNamesAndTakenBack) {
    const Ptr<OccurrenceList> inFrame = frame->childOccurrences();
    Ptr<Occurrence> added;
    open([&](const Ptr<Command>& command) {
        command->commandInputs()->addBoolValueInput("box", "Box", true);
        on<OnCommand>(command->executePreview(), [&](const auto&) {
            added = addTwo(root);
            addTwo(frame->component());
            note(added->name() + "=" + added->childOccurrences()->item(0)->fullPathName());
            note(std::to_string(inFrame->count()) + inFrame->item(1)->fullPathName());
        });
    });
    const Ptr<Occurrence> first = added;
    click(openDialog()->commandInputs()->itemById("box"));

    EXPECT_FALSE(first->isValid());
    EXPECT_TRUE(added->isValid());
    EXPECT_EQ(noted(),
              "Component1:1=Component1:1+Component2:1 2Frame:1+Component3:1 "
              "Component1:1=Component1:1+Component2:1 2Frame:1+Component3:1");
    pressCancel();
    EXPECT_FALSE(added->isValid());
    EXPECT_EQ(inFrame->count(), 1U);
    EXPECT_EQ(names(), "Design Frame Bolt Nut ");
}

// CommandEventArgs_executeFailed takes back what an execution added, and keeps it otherwise.
TEST_F(AddedComponents, StayUnlessTheExecutionFails) {
    bool fails = true;
    define("Adds", [&](const Ptr<Command>& command) {
        on<OnCommand>(command->execute(), [&](const auto& args) {
            addTwo(root)->component()->name("Rack");
            frame->isGrounded(true);
            args->executeFailed(fails);
        });
    });
    const std::string before = text();

    pressCommand("Adds");
    EXPECT_EQ(text(), before);
    EXPECT_EQ(root->occurrences()->count(), 2U);
    fails = false;
    pressCommand("Adds");

    EXPECT_EQ(names(), "Design Frame Bolt Nut Rack Component2 ");
    EXPECT_EQ(root->occurrences()->item(2)->fullPathName(), "Rack:1");
    EXPECT_TRUE(frame->isGrounded());
    pressCommand("Adds");
    EXPECT_EQ(names(), "Design Frame Bolt Nut Rack Component2 Rack (1) Component4 ");
}

TEST_F(AddedComponents, APickOfOneGoesWithItsPreview) {
    Ptr<Occurrence> added;
    Ptr<SelectionCommandInput> picked;
    open([&](const Ptr<Command>& command) {
        picked = command->commandInputs()->addSelectionInput("pick", "", "");
        picked->setSelectionLimits(0, 0);
        on<OnCommand>(command->executePreview(), [&](const auto&) { added = addTwo(root); });
    });
    pick(frame);
    EXPECT_EQ(picked->selectionCount(), 1U);

    pick(added);

    ASSERT_EQ(picked->selectionCount(), 1U);
    EXPECT_EQ(picked->selection(0)->entity(), frame);
    EXPECT_EQ(ui()->activeSelections()->count(), 1U);
    pressCancel();
}

// A preview is taken back in the order in which it was made: nothing can come in between.
TEST_F(AddedComponents, AreRefusedWhileAPreviewWaits) {
    open([&](const Ptr<Command>& command) {
        command->commandInputs()->addBoolValueInput("box", "Box", true);
        on<OnCommand>(command->executePreview(), [&](const auto&) { addTwo(root); });
        on<OnChanged>(command->inputChanged(), [&](const auto&) {
            note(root->occurrences()->addNewComponent(moved()) ? "added" : "refused");
        });
    });

    click(openDialog()->commandInputs()->itemById("box"));

    EXPECT_EQ(noted(), "refused");
    pressCancel();
    EXPECT_EQ(names(), "Design Frame Bolt Nut ");
    EXPECT_TRUE(root->occurrences()->addNewComponent(moved()));
}

TEST_F(ModelHistory, ADocumentThatIsClosedMeanwhileIsNotTakenBack) {
    define("Closes", [&](const Ptr<Command>& command) {
        on<OnCommand>(command->execute(), [&](const auto& args) {
            bolt->description("changed");
            endDocument(document);
            args->executeFailed(true);
        });
    });

    pressCommand("Closes");

    EXPECT_FALSE(bolt->isValid());
}

}  // namespace
}  // namespace host
