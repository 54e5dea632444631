#include "host/base/gate.h"
#include "tests/host/design/design_fixture.h"

using namespace adsk::core;

namespace host {
namespace {

/// Runs as a module does: calls count and can be refused.
class RefusalTest : public DesignTest {
protected:
    RefusalTest() {
        open(R"(
            Frame  at=1,2,3 grounded attribute=G/a/1
              Bolt  box=1x1x1)");
    }

    gate::Module module_;
};

TEST_F(RefusalTest, EachCallCountsOnceUnderTheClassThatDeclaresIt) {
    gate::record(true);
    const auto list = designOf(document)->rootComponent()->occurrences()->asList();
    const auto frame = list->item(0);
    EXPECT_EQ(frame->component()->attributes()->itemsByGroup("G")[0]->value(), "1");
    EXPECT_EQ(frame->childOccurrences()->count(), 1u);
    EXPECT_EQ(frame->fullPathName(), "Frame:1");
    EXPECT_EQ(frame->component()->getPhysicalProperties()->mass(), 0.00785);
    EXPECT_EQ(frame->component()->boundingBox()->maxPoint()->x(), 1);
    EXPECT_EQ(designOf(document)->parentDocument(), document);

    EXPECT_EQ(
        gate::recorded(),
        (Strings{"Design::rootComponent", "Component::occurrences", "Occurrences::asList",
                 "OccurrenceList::item", "Occurrence::component", "Component::attributes",
                 "Attributes::itemsByGroup", "Attribute::value", "Occurrence::childOccurrences",
                 "OccurrenceList::count", "Occurrence::fullPathName", "Occurrence::component",
                 "Component::getPhysicalProperties", "PhysicalProperties::mass",
                 "Occurrence::component", "Component::boundingBox", "BoundingBox3D::maxPoint",
                 "Point3D::x", "Product::parentDocument"}));
}

TEST_F(RefusalTest, RefusedGetterReturnsNothingOnce) {
    const auto frame = occurrence("Frame:1");

    gate::refuse("Occurrence::component", 1);
    EXPECT_EQ(frame->component(), nullptr);
    EXPECT_NE(frame->component(), nullptr);
    gate::refuse("Occurrence::fullPathName", 1);
    EXPECT_EQ(frame->fullPathName(), "");
    gate::refuse("Occurrence::isGrounded", 1);
    EXPECT_FALSE(frame->isGrounded());
    gate::refuse("Occurrence::childOccurrences", 1);
    EXPECT_EQ(frame->childOccurrences(), nullptr);
    gate::refuse("OccurrenceList::item", 1);
    EXPECT_EQ(frame->childOccurrences()->item(0), nullptr);
    gate::refuse("OccurrenceList::count", 1);
    EXPECT_EQ(frame->childOccurrences()->count(), 0u);
}

TEST_F(RefusalTest, RefusedReadingOfAComponentReturnsNothing) {
    const auto frame = component("Frame:1");

    gate::refuse("Component::attributes", 1);
    EXPECT_EQ(frame->attributes(), nullptr);
    gate::refuse("Attributes::itemsByGroup", 1);
    EXPECT_TRUE(frame->attributes()->itemsByGroup("G").empty());
    gate::refuse("Component::partNumber", 1);
    EXPECT_EQ(frame->partNumber(), "");
    gate::refuse("Component::material", 1);
    EXPECT_EQ(frame->material(), nullptr);
    gate::refuse("Component::getPhysicalProperties", 1);
    EXPECT_EQ(frame->getPhysicalProperties(), nullptr);
    gate::refuse("PhysicalProperties::mass", 1);
    EXPECT_EQ(frame->getPhysicalProperties()->mass(), 0);
    gate::refuse("Component::boundingBox", 1);
    EXPECT_EQ(frame->boundingBox(), nullptr);
}

TEST_F(RefusalTest, RefusedSetterChangesNothing) {
    const auto frame = component("Frame:1");

    gate::refuse("Component::name", 1);
    EXPECT_FALSE(frame->name("Rack"));
    gate::refuse("Component::partNumber", 1);
    EXPECT_FALSE(frame->partNumber("1"));
    gate::refuse("Component::description", 1);
    EXPECT_FALSE(frame->description("1"));
    gate::refuse("Attributes::add", 1);
    EXPECT_EQ(frame->attributes()->add("G", "b", "1"), nullptr);
    gate::refuse("Attribute::value", 1);
    EXPECT_FALSE(frame->attributes()->item(0)->value("2"));
    gate::refuse("Occurrence::isGrounded", 1);
    EXPECT_FALSE(occurrence("Frame:1")->isGrounded(false));
    gate::refuse("Component::transformOccurrences", 1);
    EXPECT_FALSE(root()->transformOccurrences({occurrence("Frame:1")}, {Matrix3D::create()}, true));

    gate::refuse("Occurrences::addNewComponent", 1);
    EXPECT_FALSE(root()->occurrences()->addNewComponent(Matrix3D::create()));

    EXPECT_EQ(editCount(document), 0u);
    EXPECT_TRUE(occurrence("Frame:1")->isGrounded());
}

TEST_F(RefusalTest, CreatorsPassTheGateToo) {
    gate::refuse("Matrix3D::create", 1);
    EXPECT_EQ(Matrix3D::create(), nullptr);
    gate::refuse("Point3D::create", 1);
    EXPECT_EQ(Point3D::create(1, 2, 3), nullptr);
    gate::refuse("BoundingBox3D::create", 1);
    EXPECT_EQ(BoundingBox3D::create(Point3D::create(), Point3D::create()), nullptr);
    EXPECT_EQ(BoundingBox3D::create(Point3D::create(), nullptr), nullptr);
    EXPECT_EQ(gate::count("Point3D::create"), 4u);
}

TEST_F(RefusalTest, BoxAndPointsAreValuesOfTheirOwn) {
    const Ptr<Point3D> corner = Point3D::create(1, 2, 3);
    const Ptr<BoundingBox3D> box = BoundingBox3D::create(Point3D::create(), corner);

    corner->x(9);
    EXPECT_EQ(box->maxPoint()->x(), 1);
    EXPECT_TRUE(box->maxPoint(corner));
    EXPECT_FALSE(box->maxPoint(nullptr));
    EXPECT_EQ(box->maxPoint()->x(), 9);
    EXPECT_EQ(box->maxPoint()->y(), 2);
    EXPECT_EQ(box->minPoint()->z(), 0);
}

}  // namespace
}  // namespace host
