#pragma once

#include <Core/Base.h>

#include <vector>

/// Plain values of geometry: changing one changes nothing in the design. Lengths are in cm.
namespace adsk::core {

/// A point in space.
class Point3D : public Base {
public:
    static const char* classType();  ///< "adsk::core::Point3D"

    /// A new point; never null.
    static Ptr<Point3D> create(double x = 0.0, double y = 0.0, double z = 0.0);

    [[nodiscard]] virtual double x() const = 0;  ///< in cm
    virtual bool x(double value) = 0;            ///< in cm
    [[nodiscard]] virtual double y() const = 0;  ///< in cm
    virtual bool y(double value) = 0;            ///< in cm
    [[nodiscard]] virtual double z() const = 0;  ///< in cm
    virtual bool z(double value) = 0;            ///< in cm
};

/// A box parallel to the axes.
class BoundingBox3D : public Base {
public:
    static const char* classType();  ///< "adsk::core::BoundingBox3D"

    /// A new box between two corners, copied and taken as given; null if one of them is null.
    static Ptr<BoundingBox3D> create(const Ptr<Point3D>& minPoint, const Ptr<Point3D>& maxPoint);

    /// A copy of the lower corner, in cm: changing it does not change the box.
    [[nodiscard]] virtual Ptr<Point3D> minPoint() const = 0;
    /// Copies the point; false for null.
    virtual bool minPoint(const Ptr<Point3D>& value) = 0;

    /// A copy of the upper corner, in cm: changing it does not change the box.
    [[nodiscard]] virtual Ptr<Point3D> maxPoint() const = 0;
    /// Copies the point; false for null.
    virtual bool maxPoint(const Ptr<Point3D>& value) = 0;
};

/// A placement in space: rotation and translation.
class Matrix3D : public Base {
public:
    static const char* classType();  ///< "adsk::core::Matrix3D"

    /// A new identity matrix; never null.
    static Ptr<Matrix3D> create();

    /// The sixteen cells, row by row; the translation, in cm, is the fourth of each row.
    [[nodiscard]] virtual std::vector<double> asArray() const = 0;
};

}  // namespace adsk::core
