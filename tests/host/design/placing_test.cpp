#include "host/base/last_error.h"
#include "host/design/geometry_objects.h"
#include "host/design/transform.h"
#include "tests/host/design/design_fixture.h"

using namespace adsk::core;
using namespace adsk::fusion;

namespace host {
namespace {

class PlacingTest : public DesignTest {
protected:
    PlacingTest() {
        open(R"(
            Frame  at=10,0,0
              Bolt  at=0,5,0
            Frame  at=20,0,0
            Nut  at=1,2,3)");
    }

    const Transform& placeOf(std::size_t component, std::size_t child) {
        data_ = snapshot(document);
        return data_.components[component].children[child].transform;
    }

private:
    DesignData data_;
};

TEST_F(PlacingTest, PutsEachOccurrenceWhereItsTransformSays) {
    EXPECT_TRUE(root()->transformOccurrences({occurrence("Frame:1"), occurrence("Nut:1")},
                                             {makeMatrix(translation(7, 8, 9)), Matrix3D::create()},
                                             true));

    EXPECT_EQ(placeOf(0, 0), translation(7, 8, 9));
    EXPECT_EQ(placeOf(0, 1), translation(20, 0, 0));
    EXPECT_EQ(placeOf(0, 2), Transform());
}

TEST_F(PlacingTest, OneMatrixPutsSeveralOnTopOfOneAnother) {
    const Ptr<Matrix3D> origin = Matrix3D::create();

    EXPECT_TRUE(root()->transformOccurrences({occurrence("Frame:1"), occurrence("Frame:2")},
                                             {origin, origin}, true));

    EXPECT_EQ(placeOf(0, 0), Transform());
    EXPECT_EQ(placeOf(0, 1), Transform());
}

TEST_F(PlacingTest, NestedOccurrenceEndsInTheCoordinatesOfTheRoot) {
    EXPECT_TRUE(
        root()->transformOccurrences({occurrence("Frame:1+Bolt:1")}, {Matrix3D::create()}, true));

    EXPECT_EQ(placeOf(1, 0), translation(-10, 0, 0));
}

TEST_F(PlacingTest, AssemblyIsPlacedBeforeItsChildrenWhateverTheOrder) {
    EXPECT_TRUE(root()->transformOccurrences({occurrence("Frame:1+Bolt:1"), occurrence("Frame:1")},
                                             {Matrix3D::create(), makeMatrix(translation(3, 0, 0))},
                                             true));

    EXPECT_EQ(placeOf(0, 0), translation(3, 0, 0));
    EXPECT_EQ(placeOf(1, 0), translation(-3, 0, 0));
}

TEST_F(PlacingTest, ListsOfDifferentLengthMoveNothing) {
    EXPECT_FALSE(root()->transformOccurrences({occurrence("Nut:1")}, {}, true));
    EXPECT_FALSE(root()->transformOccurrences({}, {Matrix3D::create()}, true));

    EXPECT_EQ(placeOf(0, 2), translation(1, 2, 3));
    EXPECT_EQ(lastError().code, adsk::core::BadApiCallError);
}

TEST_F(PlacingTest, NothingToPlaceIsDone) {
    EXPECT_TRUE(root()->transformOccurrences({}, {}, true));
}

TEST_F(PlacingTest, MissingEntryMovesNothing) {
    EXPECT_FALSE(root()->transformOccurrences({occurrence("Nut:1"), nullptr},
                                              {Matrix3D::create(), Matrix3D::create()}, true));
    EXPECT_FALSE(root()->transformOccurrences({occurrence("Nut:1")}, {nullptr}, true));

    EXPECT_EQ(placeOf(0, 2), translation(1, 2, 3));
}

TEST_F(PlacingTest, OnlyTheRootComponentPlaces) {
    EXPECT_FALSE(component("Frame:1")->transformOccurrences({occurrence("Frame:1+Bolt:1")},
                                                            {Matrix3D::create()}, true));

    EXPECT_EQ(placeOf(1, 0), translation(0, 5, 0));
}

TEST_F(PlacingTest, OccurrenceOfAnotherTopOrDocumentIsRefused) {
    const Ptr<Occurrence> native = component("Frame:1")->occurrences()->item(0);
    const Ptr<adsk::core::Document> other = makeDocument(parseOutline("Nut"));
    const Ptr<Occurrence> foreign = designOf(other)->rootComponent()->occurrences()->item(0);

    EXPECT_FALSE(root()->transformOccurrences({native}, {Matrix3D::create()}, true));
    EXPECT_FALSE(root()->transformOccurrences({foreign}, {Matrix3D::create()}, true));
    endDocument(other);
    EXPECT_FALSE(root()->transformOccurrences({foreign}, {Matrix3D::create()}, true));

    EXPECT_EQ(placeOf(1, 0), translation(0, 5, 0));
}

TEST_F(PlacingTest, FlattenedAssemblyMovesNothing) {
    const Transform flat = {{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}};

    EXPECT_FALSE(root()->transformOccurrences({occurrence("Frame:1+Bolt:1"), occurrence("Frame:1")},
                                              {Matrix3D::create(), makeMatrix(flat)}, true));

    EXPECT_EQ(placeOf(0, 0), translation(10, 0, 0));
    EXPECT_EQ(placeOf(1, 0), translation(0, 5, 0));
    EXPECT_EQ(lastError().code, adsk::core::InvalidGeometryError);
}

TEST_F(PlacingTest, MatrixIsTheIdentityRowByRow) {
    EXPECT_EQ(Matrix3D::create()->asArray(),
              (std::vector<double>{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}));
    EXPECT_EQ(makeMatrix(translation(1, 2, 3))->asArray(),
              (std::vector<double>{1, 0, 0, 1, 0, 1, 0, 2, 0, 0, 1, 3, 0, 0, 0, 1}));
}

}  // namespace
}  // namespace host
