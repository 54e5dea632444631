#include "host/design/geometry_objects.h"

#include "host/base/last_error.h"
#include "host/base/object.h"
#include "host/design/vector_objects.h"

#include <Core/Enums.h>

#include <array>
#include <utility>

namespace host {
namespace {

using Corner = std::array<double, 3>;

/// Copies a point's corner; false, with the failure noted, for null.
bool readCorner(const core::Ptr<core::Point3D>& point, Corner& corner) {
    const auto* object = dynamic_cast<const Point3DObject*>(point.get());
    if (object == nullptr) {
        return fail(core::BadApiCallError, "a point is needed");
    }
    corner = object->place();
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
    return host::makePoint({x, y, z});
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
