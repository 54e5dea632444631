#pragma once

#include <Core/Base.h>

#include <vector>

/// Plain values of geometry: each object stands for itself and changes nothing in the design.
/// Lengths are in cm.
namespace adsk::core {

/// A point in space.
class Point3D : public Base {
public:
    static const char* classType();

    static Ptr<Point3D> create(double x = 0.0, double y = 0.0, double z = 0.0);

    [[nodiscard]] virtual double x() const = 0;
    virtual bool x(double value) = 0;
    [[nodiscard]] virtual double y() const = 0;
    virtual bool y(double value) = 0;
    [[nodiscard]] virtual double z() const = 0;
    virtual bool z(double value) = 0;
};

/// A box along the axes.
class BoundingBox3D : public Base {
public:
    static const char* classType();

    /// The box between two corners; null where one is missing.
    static Ptr<BoundingBox3D> create(const Ptr<Point3D>& minPoint, const Ptr<Point3D>& maxPoint);

    /// A copy of the lower corner: to move it, set a point.
    [[nodiscard]] virtual Ptr<Point3D> minPoint() const = 0;
    virtual bool minPoint(const Ptr<Point3D>& value) = 0;

    /// A copy of the upper corner: to move it, set a point.
    [[nodiscard]] virtual Ptr<Point3D> maxPoint() const = 0;
    virtual bool maxPoint(const Ptr<Point3D>& value) = 0;
};

/// A placement.
class Matrix3D : public Base {
public:
    static const char* classType();

    /// The identity.
    static Ptr<Matrix3D> create();

    /// The sixteen cells, row by row; the translation is the fourth of each row.
    [[nodiscard]] virtual std::vector<double> asArray() const = 0;
};

}  // namespace adsk::core
