#include "tests/support/addin_test.h"
#include "tests/support/case_name.h"

#include "host/base/gate.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace adsk::core;
using host::SketchCurveData;

constexpr const char* kCommand = "QM_TX_projectedEntitiesAsConstruction";

class ProjectedEntities : public test_support::AddinTest {
protected:
    /// Opens a part with one sketch of these curves.
    void openSketch(std::vector<SketchCurveData> curves) {
        host::DesignData design;
        design.name = "Plate";
        design.components.emplace_back().name = "Plate";
        design.components.front().sketches = {{"Outline", std::move(curves)}};
        session->openDesign(std::move(design));
    }

    /// Begins to edit the sketch, as a double click on it does.
    void edit() const { session->editSketch(0, 0); }

    [[nodiscard]] std::vector<SketchCurveData> curves() const {
        return session->design().components.front().sketches.front().curves;
    }
};

constexpr SketchCurveData kDrawn = {.reference = false, .construction = false};
constexpr SketchCurveData kDrawnToHelp = {.reference = false, .construction = true};
constexpr SketchCurveData kProjected = {.reference = true, .construction = false};
constexpr SketchCurveData kProjectedToHelp = {.reference = true, .construction = true};

using Curves = std::vector<SketchCurveData>;

TEST_F(ProjectedEntities, SketchWithNoCurvesNothingHappens) {
    openSketch({});
    edit();

    session->press(kCommand);

    EXPECT_EQ(curves(), Curves());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(ProjectedEntities, StartedWithAComponentUnderEditNothingHappensAndNoMessageIsShown) {
    openSketch({kProjected, kDrawn});

    session->press(kCommand);

    EXPECT_EQ(curves(), (Curves{kProjected, kDrawn}));
    EXPECT_TRUE(session->messages().empty());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(ProjectedEntities, ProjectedCurvesBecomeConstructionGeometryAndDrawnOnesStayAsTheyWere) {
    openSketch({kDrawn, kProjected, kDrawnToHelp, kProjectedToHelp, kProjected});
    edit();

    session->press(kCommand);

    EXPECT_EQ(curves(),
              (Curves{kDrawn, kProjectedToHelp, kDrawnToHelp, kProjectedToHelp, kProjectedToHelp}));
    EXPECT_FALSE(session->dialogOpen());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(ProjectedEntities, CurveThatIsConstructionAlreadyIsSetAgain) {
    openSketch({kProjectedToHelp, kDrawn});
    edit();
    host::gate::reset();

    session->press(kCommand);

    EXPECT_EQ(host::gate::count("SketchCurve::isConstruction"), 1U);
    EXPECT_EQ(curves(), (Curves{kProjectedToHelp, kDrawn}));
}

/// A call of the host that returns nothing, and what is thrown for it.
struct MissingCall {
    const char* name;
    const char* call;
    const char* thrown;
};

class ProjectedEntitiesWithout : public ProjectedEntities,
                                 public testing::WithParamInterface<MissingCall> {};

TEST_P(ProjectedEntitiesWithout, LeaveTheCurvesAlone) {
    openSketch({kProjected});
    edit();
    host::gate::refuse(GetParam().call, 1);

    session->press(kCommand);

    EXPECT_EQ(uncaughtExceptions(), GetParam().thrown);
    EXPECT_EQ(curves(), Curves{kProjected});
}

INSTANTIATE_TEST_SUITE_P(Each, ProjectedEntitiesWithout,
                         testing::Values(MissingCall{.name = "TheCurves",
                                                     .call = "Sketch::sketchCurves",
                                                     .thrown = "std::exception:  in OnExecute"},
                                         MissingCall{.name = "ACommand",
                                                     .call = "CommandCreatedEventArgs::command",
                                                     .thrown = ""}),
                         test_support::caseName);

TEST_F(ProjectedEntities, ThrowsAtACurveThatTheHostDoesNotReturn) {
    openSketch({kProjected, kProjected, kProjected});
    edit();
    host::gate::refuse("SketchCurves::item", 2);

    session->press(kCommand);

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnExecute");
    EXPECT_EQ(curves(), (Curves{kProjectedToHelp, kProjected, kProjected}));
}

}  // namespace
