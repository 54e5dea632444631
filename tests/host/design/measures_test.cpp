#include "host/base/last_error.h"
#include "host/design/geometry.h"
#include "tests/host/design/design_fixture.h"

#include <array>
#include <cmath>
#include <memory>
#include <stdexcept>
#include <tuple>

using namespace adsk::core;
using namespace adsk::fusion;

namespace host {
namespace {

using MeasuresTest = DesignTest;

std::array<double, 6> cornersOf(const Ptr<BoundingBox3D>& box) {
    return {box->minPoint()->x(), box->minPoint()->y(), box->minPoint()->z(),
            box->maxPoint()->x(), box->maxPoint()->y(), box->maxPoint()->z()};
}

using Corners = std::array<double, 6>;

TEST_F(MeasuresTest, PartIsMeasuredByItsGeometryAndMaterial) {
    open("Plate  box=10x20x0.5 material=Aluminium:0.0027");
    const Ptr<PhysicalProperties> plate = component("Plate:1")->physicalProperties();

    EXPECT_DOUBLE_EQ(plate->area(), 430);
    EXPECT_DOUBLE_EQ(plate->volume(), 100);
    EXPECT_DOUBLE_EQ(plate->mass(), 0.27);
    EXPECT_DOUBLE_EQ(plate->density(), 0.0027);
}

TEST_F(MeasuresTest, AssemblyIsTheSumOfItsOccurrences) {
    open(R"(
        Frame
          Beam  measures=100:50 material=A:0.002
          Joint
            Bolt  measures=4:1 material=B:0.008
            Bolt
        Joint)");

    const Ptr<PhysicalProperties> frame =
        component("Frame:1")->getPhysicalProperties(adsk::fusion::LowCalculationAccuracy);
    EXPECT_DOUBLE_EQ(frame->area(), 108);
    EXPECT_DOUBLE_EQ(frame->volume(), 52);
    EXPECT_DOUBLE_EQ(frame->mass(), 0.116);
    EXPECT_DOUBLE_EQ(frame->density(), 0.116 / 52);
    EXPECT_DOUBLE_EQ(root()->physicalProperties()->volume(), 54);
    EXPECT_DOUBLE_EQ(occurrence("Joint:2")->physicalProperties()->mass(), 0.016);
}

TEST_F(MeasuresTest, ComponentWithoutGeometryMeasuresNothing) {
    open(R"(
        Empty
        (absent))");
    const Ptr<PhysicalProperties> empty = component("Empty:1")->physicalProperties();

    EXPECT_EQ(empty->area(), 0);
    EXPECT_EQ(empty->volume(), 0);
    EXPECT_EQ(empty->mass(), 0);
    EXPECT_EQ(empty->density(), 0);
    EXPECT_EQ(cornersOf(component("Empty:1")->boundingBox()), Corners());
    EXPECT_EQ(root()->physicalProperties()->mass(), 0);
}

TEST_F(MeasuresTest, ComponentWithoutMaterialHasNoMass) {
    open("Air  box=1x1x1 material=none");

    EXPECT_EQ(component("Air:1")->physicalProperties()->mass(), 0);
    EXPECT_EQ(component("Air:1")->physicalProperties()->volume(), 1);
}

TEST_F(MeasuresTest, BoxOfAnAssemblyHoldsItsPlacedParts) {
    open(R"(
        Frame  at=100,0,0
          Beam  box=10x1x1 at=0,0,5
          Joint  at=-2,0,0
            Bolt  box=1x1x2 at=0,-3,0)");

    EXPECT_EQ(cornersOf(component("Frame:1")->boundingBox()), (Corners{-2, -3, 0, 10, 1, 6}));
    EXPECT_EQ(cornersOf(root()->boundingBox()), (Corners{98, -3, 0, 110, 1, 6}));
}

TEST_F(MeasuresTest, BoxOfARotatedPartIsExactAndNotTheBoxAroundABox) {
    // Turned by 45 degrees and turned back inside: the part is along the axes again.
    const double h = std::sqrt(0.5);
    DesignData data = parseOutline(R"(
        Outer
          Inner
            Part  box=2x1x1)");
    data.components[0].children[0].transform = {{h, -h, 0, 0, h, h, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}};
    data.components[1].children[0].transform = {{h, h, 0, 0, -h, h, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}};
    open(std::move(data));

    const Corners box = cornersOf(root()->boundingBox());

    EXPECT_NEAR(box[0], 0, 1e-12);
    EXPECT_NEAR(box[3], 2, 1e-12);
    EXPECT_NEAR(box[4], 1, 1e-12);
    EXPECT_NEAR(component("Outer:1")->boundingBox()->maxPoint()->x(), 3 * h, 1e-12);
}

TEST_F(MeasuresTest, BoxFollowsWhatIsPlacedAgain) {
    open("Bolt  box=1x1x1 at=5,0,0");
    EXPECT_EQ(cornersOf(root()->boundingBox()), (Corners{5, 0, 0, 6, 1, 1}));

    root()->transformOccurrences({occurrence("Bolt:1")}, {Matrix3D::create()}, true);

    EXPECT_EQ(cornersOf(root()->boundingBox()), (Corners{0, 0, 0, 1, 1, 1}));
}

TEST_F(MeasuresTest, MassOfAnAssemblyFollowsAMaterial) {
    open(R"(
        Frame
          Bolt  box=1x1x1
        Plate  material=Aluminium:0.0027)");
    EXPECT_DOUBLE_EQ(root()->physicalProperties()->mass(), 0.00785);

    component("Frame:1+Bolt:1")->material(component("Plate:1")->material());

    EXPECT_DOUBLE_EQ(root()->physicalProperties()->mass(), 0.0027);
}

TEST_F(MeasuresTest, PropertiesAreASnapshot) {
    open(R"(
        Bolt  box=1x1x1
        Plate  material=Aluminium:0.0027)");
    const Ptr<PhysicalProperties> before = component("Bolt:1")->physicalProperties();

    component("Bolt:1")->material(component("Plate:1")->material());

    EXPECT_DOUBLE_EQ(before->mass(), 0.00785);
}

/// Counts what is asked of it.
class CountingGeometry final : public Geometry {
public:
    double area() override { return ++areas, 6; }
    double volume() override { return ++volumes, 1; }
    std::optional<Box> box(const Transform& /*placement*/) override {
        return ++boxes, Box{{0, 0, 0}, {1, 1, 1}};
    }

    int areas = 0;
    int volumes = 0;
    int boxes = 0;
};

TEST_F(MeasuresTest, NothingIsMeasuredBeforeItIsAskedForAndThenOnce) {
    const auto geometry = std::make_shared<CountingGeometry>();
    DesignData data = parseOutline(R"(
        Joint
          Bolt
          Bolt  at=1,0,0
        Joint  at=0,1,0)");
    data.components[2].geometry = geometry;
    open(std::move(data));
    EXPECT_EQ(paths().size(), 6u);
    EXPECT_EQ(geometry->areas + geometry->volumes + geometry->boxes, 0);

    EXPECT_DOUBLE_EQ(root()->physicalProperties()->volume(), 4);
    EXPECT_EQ(cornersOf(root()->boundingBox()), (Corners{0, 0, 0, 2, 2, 1}));
    EXPECT_DOUBLE_EQ(component("Joint:1")->physicalProperties()->area(), 12);
    EXPECT_EQ(cornersOf(component("Joint:1")->boundingBox()), (Corners{0, 0, 0, 2, 1, 1}));

    EXPECT_EQ(geometry->areas, 1);
    EXPECT_EQ(geometry->volumes, 1);
    EXPECT_EQ(geometry->boxes, 1);
}

/// A shape that the modeller cannot make sense of.
class BrokenGeometry final : public Geometry {
public:
    double area() override { throw std::runtime_error("the shell is open"); }
    double volume() override { throw std::runtime_error("the shell is open"); }
    std::optional<Box> box(const Transform& /*placement*/) override {
        throw std::runtime_error("the shell is open");
    }
};

TEST_F(MeasuresTest, ShapeThatCannotBeMeasuredCountsAsNoneAndIsNoted) {
    DesignData data = parseOutline("Bolt");
    data.components[1].geometry = std::make_shared<BrokenGeometry>();
    open(std::move(data));

    EXPECT_EQ(root()->physicalProperties()->volume(), 0);
    EXPECT_EQ(lastError().description, "the shell is open");
    EXPECT_EQ(lastError().code, adsk::core::InvalidGeometryError);
    EXPECT_EQ(cornersOf(root()->boundingBox()), Corners());
}

TEST_F(MeasuresTest, MeasuringFailureIsReportedOnceForEachComponent) {
    DesignData data = parseOutline(R"(
        Bolt
        Nut
        Washer  box=1x1x1)");
    data.components[1].geometry = std::make_shared<BrokenGeometry>();
    data.components[2].geometry = data.components[1].geometry;
    open(std::move(data));
    EXPECT_EQ(unmeasuredIn(document), std::vector<Unmeasured>());

    std::ignore = root()->physicalProperties();
    std::ignore = root()->boundingBox();

    EXPECT_EQ(unmeasuredIn(document), (std::vector<Unmeasured>{{"Bolt", "the shell is open"},
                                                               {"Nut", "the shell is open"}}));
}

}  // namespace
}  // namespace host
