#include "host/base/host_state.h"

#include <Core/CoreAll.h>

#include <gtest/gtest.h>

#include <numbers>
#include <vector>

namespace host {
namespace {

using namespace adsk::core;

class Vectors : public testing::Test {
    HostState host_;

protected:
    static std::vector<double> partsOf(const Ptr<Vector3D>& vector) {
        return {vector->x(), vector->y(), vector->z()};
    }

    static void expectNear(const Ptr<Point3D>& point, double x, double y, double z) {
        EXPECT_TRUE(point->isEqualTo(Point3D::create(x, y, z)))
            << point->x() << " " << point->y() << " " << point->z();
    }

    const Ptr<Vector3D> right = Vector3D::create(1, 0, 0);
    const Ptr<Vector3D> up = Vector3D::create(0, 0, 2);
};

// Vector3D.
TEST_F(Vectors, AreAddedScaledAndMultiplied) {
    const Ptr<Vector3D> sum = right->copy();
    EXPECT_TRUE(sum->add(up));
    EXPECT_EQ(partsOf(sum), (std::vector<double>{1, 0, 2}));
    EXPECT_TRUE(sum->subtract(right));
    EXPECT_TRUE(sum->scaleBy(2));
    EXPECT_TRUE(sum->isEqualTo(Vector3D::create(0, 0, 4)));
    EXPECT_EQ(sum->length(), 4);
    EXPECT_TRUE(sum->normalize());
    EXPECT_EQ(sum->length(), 1);
    EXPECT_EQ(partsOf(right->crossProduct(up)), (std::vector<double>{0, -2, 0}));
    EXPECT_EQ(right->dotProduct(Vector3D::create(3, 4, 5)), 3);
    EXPECT_DOUBLE_EQ(right->angleTo(up), std::numbers::pi / 2);
    EXPECT_EQ(partsOf(right), (std::vector<double>{1, 0, 0}));
}

TEST_F(Vectors, WithoutALengthHaveNoDirection) {
    const Ptr<Vector3D> none = Vector3D::create();

    EXPECT_FALSE(none->normalize());
    EXPECT_EQ(none->angleTo(up), 0);
    EXPECT_FALSE(none->add(nullptr));
    EXPECT_EQ(none->crossProduct(nullptr), nullptr);
    EXPECT_FALSE(none->isEqualTo(nullptr));
}

// Point3D.
TEST_F(Vectors, LeadFromPointToPoint) {
    const Ptr<Point3D> point = Point3D::create(1, 2, 3);
    const Ptr<Point3D> other = Point3D::create(1, 5, 7);

    EXPECT_EQ(point->distanceTo(other), 5);
    EXPECT_TRUE(point->translateBy(point->vectorTo(other)));
    EXPECT_TRUE(point->isEqualTo(other));
    EXPECT_EQ(partsOf(point->asVector()), (std::vector<double>{1, 5, 7}));
    EXPECT_EQ(point->distanceTo(nullptr), 0);
}

// Matrix3D_setToRotation: a quarter turn about an axis through (1, 0, 0).
TEST_F(Vectors, AreTurnedAboutAnAxis) {
    const Ptr<Matrix3D> turn = Matrix3D::create();
    EXPECT_TRUE(turn->setToRotation(std::numbers::pi / 2, up, Point3D::create(1, 0, 0)));
    const Ptr<Point3D> point = Point3D::create(2, 0, 5);

    EXPECT_TRUE(point->transformBy(turn));
    expectNear(point, 1, 1, 5);
    EXPECT_NEAR(turn->determinant(), 1, 1e-12);

    EXPECT_TRUE(turn->invert());
    EXPECT_TRUE(point->transformBy(turn));
    expectNear(point, 2, 0, 5);
    EXPECT_FALSE(turn->setToRotation(1, Vector3D::create(), point));
}

// Matrix3D_transformBy, Matrix3D_translation.
TEST_F(Vectors, MatricesFollowEachOther) {
    const Ptr<Matrix3D> moved = Matrix3D::create();
    EXPECT_TRUE(moved->translation(Vector3D::create(1, 2, 3)));
    const Ptr<Matrix3D> turned = Matrix3D::create();
    turned->setToRotation(std::numbers::pi, up, Point3D::create());

    EXPECT_TRUE(moved->transformBy(turned));

    expectNear(moved->translation()->asPoint(), -1, -2, 3);
    EXPECT_NEAR(moved->getCell(0, 0), -1, 1e-12);
    EXPECT_FALSE(moved->isEqualTo(turned));
    EXPECT_TRUE(moved->translation(Vector3D::create()));
    EXPECT_TRUE(moved->isEqualTo(turned));
    EXPECT_TRUE(moved->setToIdentity());
    EXPECT_TRUE(moved->isEqualTo(Matrix3D::create()));
}

TEST_F(Vectors, MatricesAreSetCellByCellAndAsCoordinates) {
    const Ptr<Matrix3D> matrix = Matrix3D::create();
    EXPECT_TRUE(matrix->setWithCoordinateSystem(Point3D::create(1, 2, 3), Vector3D::create(0, 1, 0),
                                                Vector3D::create(-1, 0, 0),
                                                Vector3D::create(0, 0, 1)));
    EXPECT_EQ(matrix->asArray(),
              (std::vector<double>{0, -1, 0, 1, 1, 0, 0, 2, 0, 0, 1, 3, 0, 0, 0, 1}));
    Ptr<Point3D> origin;
    Ptr<Vector3D> x;
    Ptr<Vector3D> y;
    Ptr<Vector3D> z;
    EXPECT_TRUE(matrix->getAsCoordinateSystem(origin, x, y, z));
    expectNear(origin, 1, 2, 3);
    EXPECT_EQ(partsOf(y), (std::vector<double>{-1, 0, 0}));

    EXPECT_TRUE(matrix->setCell(0, 3, 9));
    EXPECT_EQ(matrix->getCell(0, 3), 9);
    EXPECT_FALSE(matrix->setCell(3, 0, 1));
    EXPECT_EQ(matrix->getCell(4, 0), 0);
    const Ptr<Matrix3D> copy = Matrix3D::create();
    EXPECT_TRUE(copy->setWithArray(matrix->asArray()));
    EXPECT_TRUE(copy->isEqualTo(matrix->copy()));
    EXPECT_FALSE(copy->setWithArray({1, 2, 3}));
    EXPECT_FALSE(copy->setWithCoordinateSystem(nullptr, x, y, z));
}

}  // namespace
}  // namespace host
