#include "host/design/geometry_objects.h"

#include "host/base/last_error.h"
#include "host/base/object.h"

#include <Core/Enums.h>

#include <array>
#include <cstddef>
#include <utility>

using adsk::core::BoundingBox3D;
using adsk::core::Matrix3D;
using adsk::core::Point3D;
using adsk::core::Ptr;

namespace host {
namespace {

using Corner = std::array<double, 3>;

class PointObject final : public Object<Point3D> {
public:
    explicit PointObject(const Corner& corner) : corner_(corner) {}

    [[nodiscard]] const Corner& corner() const { return corner_; }

    [[nodiscard]] double x() const override { return refused<"Point3D::x">() ? 0 : corner_[0]; }
    bool x(double value) override { return !refused<"Point3D::x">() && set(0, value); }
    [[nodiscard]] double y() const override { return refused<"Point3D::y">() ? 0 : corner_[1]; }
    bool y(double value) override { return !refused<"Point3D::y">() && set(1, value); }
    [[nodiscard]] double z() const override { return refused<"Point3D::z">() ? 0 : corner_[2]; }
    bool z(double value) override { return !refused<"Point3D::z">() && set(2, value); }

private:
    bool set(std::size_t axis, double value) {
        corner_[axis] = value;
        return true;
    }

    Corner corner_;
};

/// Copies a point's corner; false, with the failure noted, for null.
bool readCorner(const Ptr<Point3D>& point, Corner& corner) {
    const auto* object = dynamic_cast<const PointObject*>(point.get());
    if (object == nullptr) {
        return fail(adsk::core::BadApiCallError, "a point is needed");
    }
    corner = object->corner();
    return true;
}

class BoundingBoxObject final : public Object<BoundingBox3D> {
public:
    explicit BoundingBoxObject(const Box& box) : box_(box) {}

    [[nodiscard]] Ptr<Point3D> minPoint() const override {
        if (refused<"BoundingBox3D::minPoint">()) return {};
        return make<PointObject>(box_.min);
    }

    bool minPoint(const Ptr<Point3D>& value) override {
        if (refused<"BoundingBox3D::minPoint">()) return {};
        return readCorner(value, box_.min);
    }

    [[nodiscard]] Ptr<Point3D> maxPoint() const override {
        if (refused<"BoundingBox3D::maxPoint">()) return {};
        return make<PointObject>(box_.max);
    }

    bool maxPoint(const Ptr<Point3D>& value) override {
        if (refused<"BoundingBox3D::maxPoint">()) return {};
        return readCorner(value, box_.max);
    }

private:
    Box box_;
};

class MatrixObject final : public Object<Matrix3D> {
public:
    explicit MatrixObject(const Transform& transform) : transform_(transform) {}

    [[nodiscard]] const Transform& transform() const { return transform_; }

    [[nodiscard]] std::vector<double> asArray() const override {
        if (refused<"Matrix3D::asArray">()) return {};
        return {transform_.cells.begin(), transform_.cells.end()};
    }

private:
    Transform transform_;
};

}  // namespace

Ptr<BoundingBox3D> makeBoundingBox(const Box& box) { return make<BoundingBoxObject>(box); }

Ptr<Matrix3D> makeMatrix(const Transform& transform) { return make<MatrixObject>(transform); }

std::optional<Transform> transformOf(const Ptr<Matrix3D>& matrix) {
    const auto* object = dynamic_cast<const MatrixObject*>(matrix.get());
    if (object == nullptr) {
        return std::nullopt;
    }
    return object->transform();
}

}  // namespace host

namespace adsk::core {

Ptr<Point3D> Point3D::create(double x, double y, double z) {
    if (host::refused<"Point3D::create">()) return {};
    return host::make<host::PointObject>(host::Corner{x, y, z});
}

Ptr<BoundingBox3D> BoundingBox3D::create(const Ptr<Point3D>& minPoint,
                                         const Ptr<Point3D>& maxPoint) {
    if (host::refused<"BoundingBox3D::create">()) return {};
    host::Box box;
    if (!host::readCorner(minPoint, box.min) || !host::readCorner(maxPoint, box.max)) {
        return {};
    }
    return host::makeBoundingBox(box);
}

Ptr<Matrix3D> Matrix3D::create() {
    if (host::refused<"Matrix3D::create">()) return {};
    return host::makeMatrix({});
}

}  // namespace adsk::core
