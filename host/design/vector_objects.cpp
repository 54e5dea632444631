#include "host/design/vector_objects.h"

#include "host/base/last_error.h"
#include "host/design/transform.h"

#include <Core/Enums.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>

namespace host {
namespace {

constexpr double kTolerance = 1e-6;
constexpr std::size_t kColumns = 4;
constexpr std::size_t kTranslation = 3;

const Triple* tripleOf(const core::Ptr<core::Point3D>& point) {
    const auto* object = dynamic_cast<const Point3DObject*>(point.get());
    return object == nullptr ? nullptr : &object->place();
}

const Triple* tripleOf(const core::Ptr<core::Vector3D>& vector) {
    const auto* object = dynamic_cast<const Vector3DObject*>(vector.get());
    return object == nullptr ? nullptr : &object->parts();
}

const Transform* transformIn(const core::Ptr<core::Matrix3D>& matrix) {
    const auto* object = dynamic_cast<const Matrix3DObject*>(matrix.get());
    return object == nullptr ? nullptr : &object->transform();
}

bool isNull(const char* operation) {
    return fail(core::BadApiCallError, std::string(operation) + ": the argument is null");
}

Triple sum(const Triple& left, const Triple& right, double factor = 1) {
    return {left[0] + factor * right[0], left[1] + factor * right[1], left[2] + factor * right[2]};
}

double dot(const Triple& left, const Triple& right) {
    return left[0] * right[0] + left[1] * right[1] + left[2] * right[2];
}

Triple cross(const Triple& left, const Triple& right) {
    return {left[1] * right[2] - left[2] * right[1], left[2] * right[0] - left[0] * right[2],
            left[0] * right[1] - left[1] * right[0]};
}

double lengthOf(const Triple& vector) { return std::sqrt(dot(vector, vector)); }

Triple scaled(const Triple& vector, double factor) { return sum({}, vector, factor); }

bool areEqual(const Triple& left, const Triple& right) {
    return std::equal(left.begin(), left.end(), right.begin(),
                      [](double one, double other) { return std::abs(one - other) <= kTolerance; });
}

/// A vector turned and scaled, without the translation.
Triple turned(const Transform& by, const Triple& vector) {
    Triple result{};
    for (std::size_t row = 0; row < result.size(); ++row) {
        for (std::size_t i = 0; i < vector.size(); ++i) {
            result[row] += by.cells[row * kColumns + i] * vector[i];
        }
    }
    return result;
}

Triple translationOf(const Transform& transform) {
    return {transform.cells[kTranslation], transform.cells[kColumns + kTranslation],
            transform.cells[2 * kColumns + kTranslation]};
}

}  // namespace

core::Ptr<core::Point3D> Point3DObject::copy() const {
    if (closed<"copy">(*this)) return {};
    return make<Point3DObject>(place_);
}

core::Ptr<core::Vector3D> Point3DObject::asVector() const {
    if (closed<"asVector">(*this)) return {};
    return make<Vector3DObject>(place_);
}

core::Ptr<core::Vector3D> Point3DObject::vectorTo(const core::Ptr<core::Point3D>& point) const {
    if (closed<"vectorTo">(*this)) return {};
    if (const Triple* to = tripleOf(point)) return make<Vector3DObject>(sum(*to, place_, -1));
    isNull("Point3D::vectorTo");
    return {};
}

double Point3DObject::distanceTo(const core::Ptr<core::Point3D>& point) const {
    if (closed<"distanceTo">(*this)) return {};
    if (const Triple* to = tripleOf(point)) return lengthOf(sum(*to, place_, -1));
    isNull("Point3D::distanceTo");
    return {};
}

bool Point3DObject::isEqualTo(const core::Ptr<core::Point3D>& point) const {
    if (closed<"isEqualTo">(*this)) return {};
    const Triple* to = tripleOf(point);
    return to == nullptr ? isNull("Point3D::isEqualTo")
                         : lengthOf(sum(*to, place_, -1)) <= kTolerance;
}

bool Point3DObject::translateBy(const core::Ptr<core::Vector3D>& vector) {
    if (closed<"translateBy">(*this)) return {};
    const Triple* by = tripleOf(vector);
    if (by == nullptr) return isNull("Point3D::translateBy");
    place_ = sum(place_, *by);
    return true;
}

bool Point3DObject::transformBy(const core::Ptr<core::Matrix3D>& matrix) {
    if (closed<"transformBy">(*this)) return {};
    const Transform* by = transformIn(matrix);
    if (by == nullptr) return isNull("Point3D::transformBy");
    place_ = sum(turned(*by, place_), translationOf(*by));
    return true;
}

double Vector3DObject::length() const {
    if (closed<"length">(*this)) return {};
    return lengthOf(parts_);
}

bool Vector3DObject::normalize() {
    if (closed<"normalize">(*this)) return {};
    const double length = lengthOf(parts_);
    if (length == 0) {
        return fail(core::InvalidGeometryError, "Vector3D::normalize: the length is 0");
    }
    parts_ = scaled(parts_, 1 / length);
    return true;
}

bool Vector3DObject::scaleBy(double scale) {
    if (closed<"scaleBy">(*this)) return {};
    parts_ = scaled(parts_, scale);
    return true;
}

bool Vector3DObject::add(const core::Ptr<core::Vector3D>& vector) {
    if (closed<"add">(*this)) return {};
    const Triple* other = tripleOf(vector);
    if (other == nullptr) return isNull("Vector3D::add");
    parts_ = sum(parts_, *other);
    return true;
}

bool Vector3DObject::subtract(const core::Ptr<core::Vector3D>& vector) {
    if (closed<"subtract">(*this)) return {};
    const Triple* other = tripleOf(vector);
    if (other == nullptr) return isNull("Vector3D::subtract");
    parts_ = sum(parts_, *other, -1);
    return true;
}

bool Vector3DObject::transformBy(const core::Ptr<core::Matrix3D>& matrix) {
    if (closed<"transformBy">(*this)) return {};
    const Transform* by = transformIn(matrix);
    if (by == nullptr) return isNull("Vector3D::transformBy");
    parts_ = turned(*by, parts_);
    return true;
}

core::Ptr<core::Vector3D> Vector3DObject::copy() const {
    if (closed<"copy">(*this)) return {};
    return make<Vector3DObject>(parts_);
}

core::Ptr<core::Point3D> Vector3DObject::asPoint() const {
    if (closed<"asPoint">(*this)) return {};
    return make<Point3DObject>(parts_);
}

core::Ptr<core::Vector3D> Vector3DObject::crossProduct(
    const core::Ptr<core::Vector3D>& vector) const {
    if (closed<"crossProduct">(*this)) return {};
    if (const Triple* other = tripleOf(vector)) return make<Vector3DObject>(cross(parts_, *other));
    isNull("Vector3D::crossProduct");
    return {};
}

double Vector3DObject::dotProduct(const core::Ptr<core::Vector3D>& vector) const {
    if (closed<"dotProduct">(*this)) return {};
    if (const Triple* other = tripleOf(vector)) return dot(parts_, *other);
    isNull("Vector3D::dotProduct");
    return {};
}

double Vector3DObject::angleTo(const core::Ptr<core::Vector3D>& vector) const {
    if (closed<"angleTo">(*this)) return {};
    const Triple* other = tripleOf(vector);
    if (other == nullptr || lengthOf(parts_) == 0 || lengthOf(*other) == 0) {
        fail(core::InvalidGeometryError, "Vector3D::angleTo: a vector without a direction");
        return {};
    }
    // Exact near 0 and pi, where the arc cosine is not.
    return std::atan2(lengthOf(cross(parts_, *other)), dot(parts_, *other));
}

bool Vector3DObject::isEqualTo(const core::Ptr<core::Vector3D>& vector) const {
    if (closed<"isEqualTo">(*this)) return {};
    const Triple* other = tripleOf(vector);
    return other == nullptr ? isNull("Vector3D::isEqualTo") : areEqual(parts_, *other);
}

Triple Matrix3DObject::column(std::size_t index) const {
    return {transform_.cells[index], transform_.cells[kColumns + index],
            transform_.cells[2 * kColumns + index]};
}

void Matrix3DObject::setColumn(std::size_t index, const Triple& value) {
    for (std::size_t row = 0; row < value.size(); ++row) {
        transform_.cells[row * kColumns + index] = value[row];
    }
}

std::vector<double> Matrix3DObject::asArray() const {
    if (closed<"asArray">(*this)) return {};
    return {transform_.cells.begin(), transform_.cells.end()};
}

bool Matrix3DObject::setWithArray(const std::vector<double>& cells) {
    if (closed<"setWithArray">(*this)) return {};
    const Transform identity;
    constexpr std::ptrdiff_t kLastRow = 12;
    if (cells.size() != identity.cells.size() ||
        !std::equal(cells.begin() + kLastRow, cells.end(), identity.cells.begin() + kLastRow)) {
        return fail(core::BadApiCallError,
                    "Matrix3D::setWithArray: needs sixteen cells that end with 0, 0, 0, 1");
    }
    std::copy(cells.begin(), cells.end(), transform_.cells.begin());
    return true;
}

double Matrix3DObject::getCell(int row, int column) const {
    if (closed<"getCell">(*this)) return {};
    if (row < 0 || row > 3 || column < 0 || column > 3) {
        fail(core::BadApiCallError, "Matrix3D::getCell: rows and columns are 0 to 3");
        return {};
    }
    return transform_
        .cells[static_cast<std::size_t>(row) * kColumns + static_cast<std::size_t>(column)];
}

bool Matrix3DObject::setCell(int row, int column, double value) {
    if (closed<"setCell">(*this)) return {};
    if (row < 0 || row > 2 || column < 0 || column > 3) {
        return fail(core::BadApiCallError,
                    "Matrix3D::setCell: rows are 0 to 2, and columns 0 to 3");
    }
    transform_.cells[static_cast<std::size_t>(row) * kColumns + static_cast<std::size_t>(column)] =
        value;
    return true;
}

core::Ptr<core::Vector3D> Matrix3DObject::translation() const {
    if (closed<"translation">(*this)) return {};
    return make<Vector3DObject>(translationOf(transform_));
}

bool Matrix3DObject::translation(const core::Ptr<core::Vector3D>& value) {
    if (closed<"translation">(*this)) return {};
    const Triple* parts = tripleOf(value);
    if (parts == nullptr) return isNull("Matrix3D::translation");
    setColumn(kTranslation, *parts);
    return true;
}

bool Matrix3DObject::setToIdentity() {
    if (closed<"setToIdentity">(*this)) return {};
    transform_ = {};
    return true;
}

// The formula of Rodrigues for each of the axes.
bool Matrix3DObject::setToRotation(double angle, const core::Ptr<core::Vector3D>& axis,
                                   const core::Ptr<core::Point3D>& origin) {
    if (closed<"setToRotation">(*this)) return {};
    const Triple* about = tripleOf(axis);
    const Triple* through = tripleOf(origin);
    if (about == nullptr || through == nullptr || lengthOf(*about) == 0) {
        return fail(core::BadApiCallError,
                    "Matrix3D::setToRotation: needs an axis with a length, and a point");
    }
    const Triple unit = scaled(*about, 1 / lengthOf(*about));
    for (std::size_t index = 0; index < unit.size(); ++index) {
        Triple axisOfSpace{};
        axisOfSpace[index] = 1;
        Triple rotated = scaled(axisOfSpace, std::cos(angle));
        rotated = sum(rotated, cross(unit, axisOfSpace), std::sin(angle));
        setColumn(index, sum(rotated, unit, dot(unit, axisOfSpace) * (1 - std::cos(angle))));
    }
    setColumn(kTranslation, sum(*through, turned(transform_, *through), -1));
    return true;
}

bool Matrix3DObject::setWithCoordinateSystem(const core::Ptr<core::Point3D>& origin,
                                             const core::Ptr<core::Vector3D>& xAxis,
                                             const core::Ptr<core::Vector3D>& yAxis,
                                             const core::Ptr<core::Vector3D>& zAxis) {
    if (closed<"setWithCoordinateSystem">(*this)) return {};
    const std::array<const Triple*, kColumns> columns = {tripleOf(xAxis), tripleOf(yAxis),
                                                         tripleOf(zAxis), tripleOf(origin)};
    if (std::find(columns.begin(), columns.end(), nullptr) != columns.end()) {
        return isNull("Matrix3D::setWithCoordinateSystem");
    }
    for (std::size_t index = 0; index < columns.size(); ++index) {
        setColumn(index, *columns[index]);
    }
    return true;
}

bool Matrix3DObject::getAsCoordinateSystem(core::Ptr<core::Point3D>& origin,
                                           core::Ptr<core::Vector3D>& xAxis,
                                           core::Ptr<core::Vector3D>& yAxis,
                                           core::Ptr<core::Vector3D>& zAxis) const {
    if (closed<"getAsCoordinateSystem">(*this)) return {};
    origin = make<Point3DObject>(column(kTranslation));
    xAxis = make<Vector3DObject>(column(0));
    yAxis = make<Vector3DObject>(column(1));
    zAxis = make<Vector3DObject>(column(2));
    return true;
}

bool Matrix3DObject::transformBy(const core::Ptr<core::Matrix3D>& matrix) {
    if (closed<"transformBy">(*this)) return {};
    const Transform* by = transformIn(matrix);
    if (by == nullptr) return isNull("Matrix3D::transformBy");
    transform_ = *by * transform_;
    return true;
}

bool Matrix3DObject::invert() {
    if (closed<"invert">(*this)) return {};
    const std::optional<Transform> back = inverse(transform_);
    if (!back) return fail(core::InvalidGeometryError, "Matrix3D::invert: it flattens space");
    transform_ = *back;
    return true;
}

double Matrix3DObject::determinant() const {
    if (closed<"determinant">(*this)) return {};
    return dot(cross(column(0), column(1)), column(2));
}

core::Ptr<core::Matrix3D> Matrix3DObject::copy() const {
    if (closed<"copy">(*this)) return {};
    return make<Matrix3DObject>(transform_);
}

bool Matrix3DObject::isEqualTo(const core::Ptr<core::Matrix3D>& matrix) const {
    if (closed<"isEqualTo">(*this)) return {};
    const Transform* other = transformIn(matrix);
    return other == nullptr ? isNull("Matrix3D::isEqualTo")
                            : std::equal(transform_.cells.begin(), transform_.cells.end(),
                                         other->cells.begin(), [](double one, double two) {
                                             return std::abs(one - two) <= kTolerance;
                                         });
}

}  // namespace host

namespace adsk::core {

Ptr<Vector3D> Vector3D::create(double x, double y, double z) {
    if (host::refused<"Vector3D::create">()) return {};
    return host::make<host::Vector3DObject>(host::Triple{x, y, z});
}

}  // namespace adsk::core
