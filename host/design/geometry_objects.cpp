#include "host/design/geometry_objects.h"

#include "host/base/last_error.h"
#include "host/base/object.h"

#include <Core/Enums.h>

#include <array>
#include <utility>

namespace host {
namespace {

using Corner = std::array<double, 3>;

class Point3DObject final : public Object<core::Point3D> {
public:
    explicit Point3DObject(const Corner& corner) : corner_(corner) {}

    [[nodiscard]] const Corner& corner() const { return corner_; }

    [[nodiscard]] double x() const override { return get<"x">(corner_[0]); }
    bool x(double value) override { return set<"x">(corner_[0], value); }
    [[nodiscard]] double y() const override { return get<"y">(corner_[1]); }
    bool y(double value) override { return set<"y">(corner_[1], value); }
    [[nodiscard]] double z() const override { return get<"z">(corner_[2]); }
    bool z(double value) override { return set<"z">(corner_[2], value); }

private:
    Corner corner_;
};

/// Copies a point's corner; false, with the failure noted, for null.
bool readCorner(const core::Ptr<core::Point3D>& point, Corner& corner) {
    const auto* object = dynamic_cast<const Point3DObject*>(point.get());
    if (object == nullptr) {
        return fail(core::BadApiCallError, "a point is needed");
    }
    corner = object->corner();
    return true;
}

class BoundingBox3DObject final : public Object<core::BoundingBox3D> {
public:
    explicit BoundingBox3DObject(const Box& box) : box_(box) {}

    [[nodiscard]] core::Ptr<core::Point3D> minPoint() const override {
        if (closed<"minPoint">(*this)) return {};
        return make<Point3DObject>(box_.min);
    }

    bool minPoint(const core::Ptr<core::Point3D>& value) override {
        if (closed<"minPoint">(*this)) return {};
        return readCorner(value, box_.min);
    }

    [[nodiscard]] core::Ptr<core::Point3D> maxPoint() const override {
        if (closed<"maxPoint">(*this)) return {};
        return make<Point3DObject>(box_.max);
    }

    bool maxPoint(const core::Ptr<core::Point3D>& value) override {
        if (closed<"maxPoint">(*this)) return {};
        return readCorner(value, box_.max);
    }

private:
    Box box_;
};

class Matrix3DObject final : public Object<core::Matrix3D> {
public:
    explicit Matrix3DObject(const Transform& transform) : transform_(transform) {}

    [[nodiscard]] const Transform& transform() const { return transform_; }

    [[nodiscard]] std::vector<double> asArray() const override {
        if (closed<"asArray">(*this)) return {};
        return {transform_.cells.begin(), transform_.cells.end()};
    }

private:
    Transform transform_;
};

}  // namespace

core::Ptr<core::Point3D> makePoint(const std::array<double, 3>& place) {
    return make<Point3DObject>(place);
}

core::Ptr<core::BoundingBox3D> makeBoundingBox(const Box& box) {
    return make<BoundingBox3DObject>(box);
}

core::Ptr<core::Matrix3D> makeMatrix(const Transform& transform) {
    return make<Matrix3DObject>(transform);
}

std::optional<Transform> transformOf(const core::Ptr<core::Matrix3D>& matrix) {
    const auto* object = dynamic_cast<const Matrix3DObject*>(matrix.get());
    if (object == nullptr) {
        return std::nullopt;
    }
    return object->transform();
}

}  // namespace host

namespace adsk::core {

Ptr<Point3D> Point3D::create(double x, double y, double z) {
    if (host::refused<"Point3D::create">()) return {};
    return host::make<host::Point3DObject>(host::Corner{x, y, z});
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
