#include "tests/host/design/design_fixture.h"

using namespace adsk::core;
using namespace adsk::fusion;

namespace host {
namespace {

class SketchTest : public DesignTest {
protected:
    SketchTest() {
        DesignData data = parseOutline("Bolt");
        data.components[1].sketches = {{"Profile", {{false, false}, {true, false}}}};
        open(std::move(data));
    }

    Ptr<Sketch> sketch() { return sketchOf(document, 1, 0); }
};

TEST_F(SketchTest, CurvesReportTheirKind) {
    EXPECT_EQ(sketch()->sketchCurves()->count(), 2u);
    EXPECT_FALSE(sketch()->sketchCurves()->item(0)->isReference());
    EXPECT_TRUE(sketch()->sketchCurves()->item(1)->isReference());
    EXPECT_FALSE(sketch()->sketchCurves()->item(1)->isConstruction());
    EXPECT_EQ(sketch()->sketchCurves()->item(2), nullptr);
    EXPECT_EQ(std::string(sketch()->objectType()), "adsk::fusion::Sketch");
}

// SketchCurve: each curve is of the class of its kind.
TEST_F(SketchTest, CurvesAreOfTheClassOfTheirKind) {
    DesignData data = parseOutline("Bolt");
    SketchData& drawn = data.components[1].sketches.emplace_back();
    for (int kind = 0; kind < 10; ++kind) {
        drawn.curves.push_back({.kind = static_cast<SketchCurveKind>(kind)});
    }
    open(std::move(data));

    std::vector<std::string> classes;
    for (const Ptr<SketchCurve>& each : sketch()->sketchCurves()) {
        classes.emplace_back(each->objectType());
    }

    EXPECT_EQ(classes,
              (std::vector<std::string>{
                  "adsk::fusion::SketchCurve", "adsk::fusion::SketchLine",
                  "adsk::fusion::SketchArc", "adsk::fusion::SketchCircle",
                  "adsk::fusion::SketchEllipse", "adsk::fusion::SketchEllipticalArc",
                  "adsk::fusion::SketchConicCurve", "adsk::fusion::SketchFittedSpline",
                  "adsk::fusion::SketchFixedSpline", "adsk::fusion::SketchControlPointSpline"}));
    EXPECT_TRUE(Ptr<SketchCircle>(sketch()->sketchCurves()->item(3)));
    EXPECT_FALSE(Ptr<SketchLine>(sketch()->sketchCurves()->item(3)));
}

TEST_F(SketchTest, IsOneObject) {
    EXPECT_EQ(sketch(), sketch());
    EXPECT_EQ(sketch()->sketchCurves()->item(1), sketch()->sketchCurves()->item(1));
    EXPECT_EQ(sketchOf(document, 1, 1), nullptr);
    EXPECT_EQ(sketchOf(document, 9, 0), nullptr);
}

TEST_F(SketchTest, ProjectedCurveBecomesConstruction) {
    EXPECT_TRUE(sketch()->sketchCurves()->item(1)->isConstruction(true));

    EXPECT_EQ(snapshot(document).components[1].sketches,
              (std::vector<SketchData>{{"Profile", {{false, false}, {true, true}}}}));
}

TEST_F(SketchTest, CurveCanBeUnlinkedButNotProjected) {
    const Ptr<SketchCurve> drawn = sketch()->sketchCurves()->item(0);
    const Ptr<SketchCurve> projected = sketch()->sketchCurves()->item(1);

    EXPECT_FALSE(drawn->isReference(true));
    EXPECT_TRUE(projected->isReference(true));
    EXPECT_TRUE(projected->isReference(false));

    EXPECT_FALSE(drawn->isReference());
    EXPECT_FALSE(projected->isReference());
}

}  // namespace
}  // namespace host
