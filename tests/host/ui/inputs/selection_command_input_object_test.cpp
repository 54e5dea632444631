#include "tests/host/ui/host_test.h"

#include "host/design/document.h"
#include "host/design/outline.h"

#include <Fusion/FusionAll.h>

namespace host {
namespace {

using namespace adsk::core;

/// A design of three parts below the root: A:1, B:1 and C:1.
class SelectionTest : public HostWithDesign {
protected:
    SelectionTest() : HostWithDesign("A\nB\nC") {}

    Ptr<Base> part(std::size_t index) { return root->occurrences()->item(index); }

    /// A dialog with one selection input of these filters and limits.
    Ptr<SelectionCommandInput> openPicker(const std::vector<std::string>& filters,
                                          std::size_t minimum, std::size_t maximum) {
        openWith([&](const Ptr<CommandInputs>& inputs) {
            const Ptr<SelectionCommandInput> pick = inputs->addSelectionInput("pick", "", "Pick");
            for (const std::string& each : filters) {
                EXPECT_TRUE(pick->addSelectionFilter(each));
            }
            EXPECT_TRUE(pick->setSelectionLimits(minimum, maximum));
        });
        return openDialog()->commandInputs()->itemById("pick");
    }

    static std::size_t activeCount() { return ui()->activeSelections()->count(); }

    Ptr<adsk::fusion::Component> root = designOf(document)->rootComponent();
};

TEST_F(SelectionTest, APickUpdatesInputAndActiveSelectionsBeforeItIsReported) {
    open([this](const Ptr<Command>& command) {
        command->commandInputs()->addSelectionInput("pick", "", "");
        on<OnChanged>(command->inputChanged(), [this](const auto& args) {
            const Ptr<SelectionCommandInput> pick = args->input();
            EXPECT_EQ(pick->selectionCount(), 1U);
            EXPECT_EQ(ui()->activeSelections()->item(0)->entity(), part(1));
            note(pick->id());
        });
    });

    pick(part(1));

    EXPECT_EQ(noted(), "pick");
    const Ptr<SelectionCommandInput> input = openDialog()->commandInputs()->itemById("pick");
    EXPECT_EQ(input->selection(0)->entity(), part(1));
}

TEST_F(SelectionTest, ABadIndexReturnsNull) {
    const Ptr<SelectionCommandInput> input = openPicker({}, 1, 1);

    EXPECT_FALSE(input->selection(input->selectionCount() - 1));
    EXPECT_FALSE(ui()->activeSelections()->item(0));
}

TEST_F(SelectionTest, ExactlyOneEntityIsNeededByDefault) {
    openWith([](const Ptr<CommandInputs>& inputs) { inputs->addSelectionInput("pick", "", ""); });
    EXPECT_EQ(misuseOf(pressOk), "cannot press OK: the selection \"pick\" needs 1, and has 0");

    pick(part(0));
    pick(part(1));

    const Ptr<SelectionCommandInput> input = openDialog()->commandInputs()->itemById("pick");
    EXPECT_EQ(input->selectionCount(), 1U);
    EXPECT_EQ(input->selection(0)->entity(), part(1));
    EXPECT_EQ(misuseOf(pressOk), "");
}

TEST_F(SelectionTest, AMaximumOfZeroMeansNoLimit) {
    const Ptr<SelectionCommandInput> input = openPicker({}, 1, 0);

    pick(part(0));
    pick(part(1));
    pick(part(2));

    EXPECT_EQ(input->selectionCount(), 3U);
    EXPECT_EQ(activeCount(), 3U);
}

TEST_F(SelectionTest, NoMoreThanTheMaximumCanBePicked) {
    openPicker({}, 1, 2);
    pick(part(0));
    pick(part(1));

    EXPECT_EQ(misuseOf([this] { pick(part(2)); }), "cannot pick for \"pick\": it takes 2 at most");
}

TEST_F(SelectionTest, APickedEntityIsRemovedByAnotherPick) {
    const Ptr<SelectionCommandInput> input = openPicker({}, 1, 0);
    pick(part(0));
    pick(part(1));

    pick(part(0));

    EXPECT_EQ(input->selectionCount(), 1U);
    EXPECT_EQ(activeCount(), 1U);
}

TEST_F(SelectionTest, ClearingTakesAllPicksOutAtOnceAndGivesTheFocus) {
    open([this](const Ptr<Command>& command) {
        const Ptr<CommandInputs> inputs = command->commandInputs();
        inputs->addSelectionInput("pick", "", "")->setSelectionLimits(0, 0);
        inputs->addSelectionInput("other", "", "")->setSelectionLimits(0, 0);
        on<OnChanged>(command->inputChanged(),
                      [this](const auto& args) { note(args->input()->id()); });
    });
    const Ptr<SelectionCommandInput> input = openDialog()->commandInputs()->itemById("pick");
    pick(part(0));
    pick(part(1));
    click(openDialog()->commandInputs()->itemById("other"));

    clearPicks(input);
    clearPicks(input);  // nothing is left to be reported

    EXPECT_EQ(noted(), "pick pick pick");
    EXPECT_EQ(activeCount(), 0U);
    EXPECT_TRUE(input->hasFocus());
}

TEST_F(SelectionTest, OnlyASelectionCanBeCleared) {
    openWith([](const Ptr<CommandInputs>& inputs) { inputs->addStringValueInput("name", "", ""); });

    EXPECT_EQ(misuseOf([] { clearPicks(openDialog()->commandInputs()->itemById("name")); }),
              "cannot clear \"name\": it is not a selection");
}

TEST_F(SelectionTest, AnyOfSeveralFiltersSuffices) {
    const Ptr<SelectionCommandInput> input = openPicker({"Occurrences", "RootComponents"}, 1, 0);

    pick(part(0));
    pick(root);

    EXPECT_EQ(input->selectionCount(), 2U);
}

TEST_F(SelectionTest, OccurrencesAreNotRootComponents) {
    openPicker({"RootComponents"}, 1, 1);

    EXPECT_EQ(misuseOf([this] { pick(part(0)); }),
              "cannot pick for \"pick\": its filters exclude the entity");
    EXPECT_EQ(misuseOf([this] { pick(root); }), "");
}

TEST_F(SelectionTest, AnotherComponentIsNotARootComponent) {
    openPicker({"RootComponents"}, 1, 1);
    const Ptr<adsk::fusion::Occurrence> occurrence = part(0);

    EXPECT_EQ(misuseOf([&] { pick(occurrence->component()); }),
              "cannot pick for \"pick\": its filters exclude the entity");
}

TEST_F(SelectionTest, AnUnknownFilterIsRefused) {
    const Ptr<SelectionCommandInput> input = openPicker({}, 1, 1);

    EXPECT_FALSE(input->addSelectionFilter("Elephants"));
    EXPECT_TRUE(input->addSelectionFilter("JointOrigins"));
    EXPECT_EQ(misused(), "SelectionCommandInput::addSelectionFilter");
}

TEST_F(SelectionTest, WhatWasSelectedBeforeGoesIntoTheDialogAndIsReported) {
    selectInModel({part(0), part(1)});

    const Ptr<SelectionCommandInput> input = openPicker({"Occurrences"}, 1, 0);

    EXPECT_EQ(input->selectionCount(), 2U);
    EXPECT_EQ(activeCount(), 2U);
    EXPECT_EQ(noted(), "pick");
}

TEST_F(SelectionTest, WhatWasSelectedBeforeIsNotThereWhileTheCommandIsCreated) {
    selectInModel({part(0)});

    openWith([this](const Ptr<CommandInputs>& inputs) {
        const Ptr<SelectionCommandInput> pick = inputs->addSelectionInput("pick", "", "");
        EXPECT_EQ(pick->selectionCount(), 0U);
        EXPECT_FALSE(pick->addSelection(part(1)));
    });

    EXPECT_EQ(
        misuses(),
        (std::vector<Misuse>{{.operation = "SelectionCommandInput::addSelection",
                              .text = "nothing can be selected while the command is being created",
                              .event = "OnCommandCreated"}}));
}

TEST_F(SelectionTest, MoreThanTheLimitSelectedBeforeIsNotTakenAndStaysSelected) {
    selectInModel({part(0), part(1)});

    const Ptr<SelectionCommandInput> input = openPicker({"Occurrences"}, 1, 1);

    EXPECT_EQ(input->selectionCount(), 0U);
    EXPECT_EQ(activeCount(), 2U);
    EXPECT_EQ(noted(), "");
}

TEST_F(SelectionTest, WhatTheFiltersExcludeIsNotTaken) {
    selectInModel({part(0), root});

    const Ptr<SelectionCommandInput> input = openPicker({"RootComponents"}, 1, 1);

    ASSERT_EQ(input->selectionCount(), 1U);
    EXPECT_EQ(input->selection(0)->entity(), root);
    EXPECT_EQ(activeCount(), 1U);
}

TEST_F(SelectionTest, AnInputThatDoesNotUseCurrentSelectionsTakesNone) {
    selectInModel({part(0)});

    openWith([](const Ptr<CommandInputs>& inputs) {
        inputs->addSelectionInput("pick", "", "")->isUseCurrentSelections(false);
    });

    const Ptr<SelectionCommandInput> input = openDialog()->commandInputs()->itemById("pick");
    EXPECT_EQ(input->selectionCount(), 0U);
}

TEST_F(SelectionTest, AHiddenInputLosesItsSelections) {
    const Ptr<SelectionCommandInput> input = openPicker({}, 1, 0);
    pick(part(0));

    input->isVisible(false);

    EXPECT_EQ(input->selectionCount(), 0U);
    EXPECT_EQ(activeCount(), 0U);
}

TEST_F(SelectionTest, TheFirstInputHasTheFocusUntilAnotherGetsIt) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        inputs->addSelectionInput("first", "", "")->setSelectionLimits(1, 0);
        inputs->addSelectionInput("second", "", "");
    });
    const Ptr<SelectionCommandInput> first = openDialog()->commandInputs()->itemById("first");
    const Ptr<SelectionCommandInput> second = openDialog()->commandInputs()->itemById("second");
    EXPECT_TRUE(first->hasFocus());

    second->isEnabled(true);
    EXPECT_TRUE(second->hasFocus());

    click(first);
    EXPECT_TRUE(first->hasFocus());
    EXPECT_FALSE(second->isEnabled());
}

TEST_F(SelectionTest, TheFocusOfADeletedInputGoesToTheFirst) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        inputs->addSelectionInput("first", "", "");
        inputs->addGroupCommandInput("group", "")->children()->addSelectionInput("in", "", "");
    });
    const Ptr<CommandInputs> inputs = openDialog()->commandInputs();
    click(inputs->itemById("in"));

    inputs->itemById("group")->deleteMe();

    EXPECT_TRUE(Ptr<SelectionCommandInput>(inputs->itemById("first"))->hasFocus());
}

TEST_F(SelectionTest, TheFocusMovesOnWhenAnInputIsFull) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        inputs->addSelectionInput("first", "", "");
        inputs->addSelectionInput("second", "", "");
    });

    pick(part(0));
    pick(part(1));

    const Ptr<SelectionCommandInput> second = openDialog()->commandInputs()->itemById("second");
    ASSERT_EQ(second->selectionCount(), 1U);
    EXPECT_EQ(second->selection(0)->entity(), part(1));
}

TEST_F(SelectionTest, CodeCanSelectFromInsideInputChanged) {
    open([this](const Ptr<Command>& command) {
        command->commandInputs()->addBoolValueInput("go", "", false);
        on<OnChanged>(command->inputChanged(), [this](const auto&) {
            ui()->activeSelections()->clear();
            EXPECT_TRUE(ui()->activeSelections()->add(part(0)));
            EXPECT_TRUE(ui()->activeSelections()->add(part(2)));
            EXPECT_TRUE(ui()->activeSelections()->add(part(0)));
        });
    });

    click(openDialog()->commandInputs()->itemById("go"));

    ASSERT_EQ(activeCount(), 2U);
    EXPECT_EQ(ui()->activeSelections()->item(1)->entity(), part(2));
}

TEST_F(SelectionTest, ANullEntityCannotBeSelected) {
    EXPECT_FALSE(ui()->activeSelections()->add(nullptr));
    EXPECT_EQ(misuseOf([] { pick(nullptr); }), "cannot pick: no such entity");
}

TEST_F(SelectionTest, APickWithoutADialogIsAllThatIsSelected) {
    pick(part(0));
    pick(part(1));

    ASSERT_EQ(activeCount(), 1U);
    EXPECT_EQ(ui()->activeSelections()->item(0)->entity(), part(1));
}

TEST_F(SelectionTest, ThePicksOfADialogEndWithIt) {
    openPicker({}, 1, 0);
    pick(part(0));

    pressOk();

    EXPECT_EQ(activeCount(), 0U);
}

TEST_F(SelectionTest, AnExecutionThatEditsTheModelClearsTheSelections) {
    define("Edit", [this](const Ptr<Command>& command) {
        on<OnCommand>(command->execute(), [this](const auto&) { root->description("new"); });
    });
    define("Look", [](const Ptr<Command>&) {});
    selectInModel({part(0)});

    pressCommand("Look");
    EXPECT_EQ(activeCount(), 1U);

    pressCommand("Edit");
    EXPECT_EQ(activeCount(), 0U);
}

// SelectionCommandInput_hasFocus: the input has to be visible.
TEST_F(SelectionTest, AHiddenInputDoesNotTakeTheFocus) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        inputs->addSelectionInput("first", "", "");
        inputs->addSelectionInput("second", "", "")->isVisible(false);
    });
    const Ptr<SelectionCommandInput> second = openDialog()->commandInputs()->itemById("second");

    EXPECT_FALSE(second->hasFocus(true));
    EXPECT_TRUE(second->hasFocus(false));

    EXPECT_FALSE(second->hasFocus());
    std::string text;
    adsk::core::Application::get()->getLastError(&text);
    EXPECT_EQ(text, "SelectionCommandInput::hasFocus: the input is hidden");
}

std::vector<double> placeOf(const Ptr<Selection>& selection) {
    const Ptr<Point3D> point = selection->point();
    return {point->x(), point->y(), point->z()};
}

// Selection_point: where the user picked the entity.
TEST_F(SelectionTest, KnowsWhereTheEntityWasPicked) {
    const Ptr<SelectionCommandInput> input = openPicker({}, 1, 0);

    pick(part(0), {1, 2.5, -3});
    pick(part(1));

    EXPECT_EQ(placeOf(input->selection(0)), (std::vector<double>{1, 2.5, -3}));
    EXPECT_EQ(placeOf(input->selection(1)), (std::vector<double>{0, 0, 0}));
    EXPECT_EQ(placeOf(ui()->activeSelections()->item(0)), (std::vector<double>{1, 2.5, -3}));
}

/// A design whose part has a sketch with a curve of each kind.
class CurveSelectionTest : public HostTest {
protected:
    CurveSelectionTest() {
        DesignData data = parseOutline("A");
        SketchData& drawn = data.components[1].sketches.emplace_back();
        for (const SketchCurveKind kind :
             {SketchCurveKind::Unknown, SketchCurveKind::Line, SketchCurveKind::Arc,
              SketchCurveKind::Circle, SketchCurveKind::FittedSpline}) {
            drawn.curves.push_back({.kind = kind});
        }
        document = makeDocument(std::move(data), adsk::core::Application::get());
        ApplicationObject::current()->setActiveDocument(document);
    }
    ~CurveSelectionTest() override {
        endHost();
        endDocument(document);
    }

    /// The classes of the curves that a selection with this filter accepts.
    std::string accepted(const std::string& filter) {
        const Ptr<CommandInputs> inputs = openWith([&](const Ptr<CommandInputs>& all) {
            const Ptr<SelectionCommandInput> pick = all->addSelectionInput("pick", "", "");
            EXPECT_TRUE(pick->addSelectionFilter(filter));
            pick->setSelectionLimits(0, 0);
        });
        std::string classes;
        for (const Ptr<adsk::fusion::SketchCurve>& each :
             sketchOf(document, 1, 0)->sketchCurves()) {
            if (misuseOf([&each] { pick(each); }).empty()) {
                const std::string name = each->objectType();
                classes += name.substr(name.rfind(':') + 1) + " ";
            }
        }
        pressCancel();
        ui()->commandDefinitions()->itemById("Dialog")->deleteMe();
        return classes;
    }

    Ptr<Document> document;
};

// SelectionFilters_UM: "SketchLines" and "SketchCircles" are curves of these classes alone.
TEST_F(CurveSelectionTest, CurvesAreFilteredByTheirClass) {
    EXPECT_EQ(accepted("SketchLines"), "SketchLine ");
    EXPECT_EQ(accepted("SketchCircles"), "SketchCircle ");
    EXPECT_EQ(accepted("SketchCurves"),
              "SketchCurve SketchLine SketchArc SketchCircle SketchFittedSpline ");
    EXPECT_EQ(accepted("SketchPoints"), "");
}

}  // namespace
}  // namespace host
