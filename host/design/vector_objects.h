#pragma once

#include "host/base/object.h"
#include "host/design/design_data.h"

#include <Core/Geometry.h>

#include <array>
#include <cstddef>
#include <vector>

/// Points, vectors and matrices as objects of the public API.
namespace host {

using Triple = std::array<double, 3>;

class Point3DObject final : public Object<core::Point3D> {
public:
    explicit Point3DObject(const Triple& place) : place_(place) {}

    [[nodiscard]] double x() const override { return get<"x">(place_[0]); }
    bool x(double value) override { return set<"x">(place_[0], value); }
    [[nodiscard]] double y() const override { return get<"y">(place_[1]); }
    bool y(double value) override { return set<"y">(place_[1], value); }
    [[nodiscard]] double z() const override { return get<"z">(place_[2]); }
    bool z(double value) override { return set<"z">(place_[2], value); }
    [[nodiscard]] core::Ptr<core::Point3D> copy() const override;
    [[nodiscard]] core::Ptr<core::Vector3D> asVector() const override;
    [[nodiscard]] core::Ptr<core::Vector3D> vectorTo(
        const core::Ptr<core::Point3D>& point) const override;
    [[nodiscard]] double distanceTo(const core::Ptr<core::Point3D>& point) const override;
    [[nodiscard]] bool isEqualTo(const core::Ptr<core::Point3D>& point) const override;
    bool translateBy(const core::Ptr<core::Vector3D>& vector) override;
    bool transformBy(const core::Ptr<core::Matrix3D>& matrix) override;

    [[nodiscard]] const Triple& place() const { return place_; }

private:
    Triple place_;
};

class Vector3DObject final : public Object<core::Vector3D> {
public:
    explicit Vector3DObject(const Triple& parts) : parts_(parts) {}

    [[nodiscard]] double x() const override { return get<"x">(parts_[0]); }
    bool x(double value) override { return set<"x">(parts_[0], value); }
    [[nodiscard]] double y() const override { return get<"y">(parts_[1]); }
    bool y(double value) override { return set<"y">(parts_[1], value); }
    [[nodiscard]] double z() const override { return get<"z">(parts_[2]); }
    bool z(double value) override { return set<"z">(parts_[2], value); }
    [[nodiscard]] double length() const override;
    bool normalize() override;
    bool scaleBy(double scale) override;
    bool add(const core::Ptr<core::Vector3D>& vector) override;
    bool subtract(const core::Ptr<core::Vector3D>& vector) override;
    bool transformBy(const core::Ptr<core::Matrix3D>& matrix) override;
    [[nodiscard]] core::Ptr<core::Vector3D> copy() const override;
    [[nodiscard]] core::Ptr<core::Point3D> asPoint() const override;
    [[nodiscard]] core::Ptr<core::Vector3D> crossProduct(
        const core::Ptr<core::Vector3D>& vector) const override;
    [[nodiscard]] double dotProduct(const core::Ptr<core::Vector3D>& vector) const override;
    [[nodiscard]] double angleTo(const core::Ptr<core::Vector3D>& vector) const override;
    [[nodiscard]] bool isEqualTo(const core::Ptr<core::Vector3D>& vector) const override;

    [[nodiscard]] const Triple& parts() const { return parts_; }

private:
    Triple parts_;
};

class Matrix3DObject final : public Object<core::Matrix3D> {
public:
    explicit Matrix3DObject(const Transform& transform) : transform_(transform) {}

    [[nodiscard]] std::vector<double> asArray() const override;
    bool setWithArray(const std::vector<double>& cells) override;
    [[nodiscard]] double getCell(int row, int column) const override;
    bool setCell(int row, int column, double value) override;
    [[nodiscard]] core::Ptr<core::Vector3D> translation() const override;
    bool translation(const core::Ptr<core::Vector3D>& value) override;
    bool setToIdentity() override;
    bool setToRotation(double angle, const core::Ptr<core::Vector3D>& axis,
                       const core::Ptr<core::Point3D>& origin) override;
    bool setWithCoordinateSystem(const core::Ptr<core::Point3D>& origin,
                                 const core::Ptr<core::Vector3D>& xAxis,
                                 const core::Ptr<core::Vector3D>& yAxis,
                                 const core::Ptr<core::Vector3D>& zAxis) override;
    bool getAsCoordinateSystem(core::Ptr<core::Point3D>& origin, core::Ptr<core::Vector3D>& xAxis,
                               core::Ptr<core::Vector3D>& yAxis,
                               core::Ptr<core::Vector3D>& zAxis) const override;
    bool transformBy(const core::Ptr<core::Matrix3D>& matrix) override;
    bool invert() override;
    [[nodiscard]] double determinant() const override;
    [[nodiscard]] core::Ptr<core::Matrix3D> copy() const override;
    [[nodiscard]] bool isEqualTo(const core::Ptr<core::Matrix3D>& matrix) const override;

    [[nodiscard]] const Transform& transform() const { return transform_; }

private:
    [[nodiscard]] Triple column(std::size_t index) const;
    void setColumn(std::size_t index, const Triple& value);

    Transform transform_;
};

}  // namespace host
