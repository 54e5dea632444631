#pragma once

#include <Core/Base.h>

#include <vector>

/// Plain values of geometry: changing one changes nothing in the design. Lengths are in cm.
namespace adsk::core {

class Matrix3D;
class Vector3D;

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

    /// A new point at the same place.
    [[nodiscard]] virtual Ptr<Point3D> copy() const = 0;
    /// The vector from the origin to this point.
    [[nodiscard]] virtual Ptr<Vector3D> asVector() const = 0;
    /// The vector to another point; null for null.
    [[nodiscard]] virtual Ptr<Vector3D> vectorTo(const Ptr<Point3D>& point) const = 0;
    /// The distance to another point, in cm; 0, with the last error set, for null.
    [[nodiscard]] virtual double distanceTo(const Ptr<Point3D>& point) const = 0;
    /// Whether another point is no more than 1e-6 cm away; false for null.
    [[nodiscard]] virtual bool isEqualTo(const Ptr<Point3D>& point) const = 0;
    /// Moves it by a vector; false for null.
    virtual bool translateBy(const Ptr<Vector3D>& vector) = 0;
    /// Moves it by a placement; false for null.
    virtual bool transformBy(const Ptr<Matrix3D>& matrix) = 0;
};

/// A direction with a length, in cm.
class Vector3D : public Base {
public:
    static const char* classType();  ///< "adsk::core::Vector3D"

    /// A new vector; never null.
    static Ptr<Vector3D> create(double x = 0.0, double y = 0.0, double z = 0.0);

    [[nodiscard]] virtual double x() const = 0;  ///< in cm
    virtual bool x(double value) = 0;            ///< in cm
    [[nodiscard]] virtual double y() const = 0;  ///< in cm
    virtual bool y(double value) = 0;            ///< in cm
    [[nodiscard]] virtual double z() const = 0;  ///< in cm
    virtual bool z(double value) = 0;            ///< in cm

    /// The length, in cm.
    [[nodiscard]] virtual double length() const = 0;
    /// Gives it the length 1; false for one of length 0.
    virtual bool normalize() = 0;
    /// Multiplies its length.
    virtual bool scaleBy(double scale) = 0;
    /// Adds another vector; false for null.
    virtual bool add(const Ptr<Vector3D>& vector) = 0;
    /// Subtracts another vector; false for null.
    virtual bool subtract(const Ptr<Vector3D>& vector) = 0;
    /// Turns and scales it by a placement, whose translation has no effect; false for null.
    virtual bool transformBy(const Ptr<Matrix3D>& matrix) = 0;

    /// A new vector like this one.
    [[nodiscard]] virtual Ptr<Vector3D> copy() const = 0;
    /// The point that it leads to from the origin.
    [[nodiscard]] virtual Ptr<Point3D> asPoint() const = 0;
    /// The vector at right angles to both; null for null.
    [[nodiscard]] virtual Ptr<Vector3D> crossProduct(const Ptr<Vector3D>& vector) const = 0;
    /// The product with another vector; 0, with the last error set, for null.
    [[nodiscard]] virtual double dotProduct(const Ptr<Vector3D>& vector) const = 0;
    /// The angle to another vector, from 0 to pi; 0, with the last error set, for null and where
    /// one of the two has the length 0.
    [[nodiscard]] virtual double angleTo(const Ptr<Vector3D>& vector) const = 0;
    /// Whether no component differs by more than 1e-6 cm; false for null.
    [[nodiscard]] virtual bool isEqualTo(const Ptr<Vector3D>& vector) const = 0;
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
    /// Replaces all cells; false unless there are sixteen whose last row is 0, 0, 0, 1.
    virtual bool setWithArray(const std::vector<double>& cells) = 0;

    /// One cell, rows and columns counted from 0; 0, with the last error set, outside.
    [[nodiscard]] virtual double getCell(int row, int column) const = 0;
    /// False outside the first three rows and the four columns.
    virtual bool setCell(int row, int column, double value) = 0;

    /// The translation, in cm.
    [[nodiscard]] virtual Ptr<Vector3D> translation() const = 0;
    /// Replaces the translation alone; false for null.
    virtual bool translation(const Ptr<Vector3D>& value) = 0;

    /// Moves and turns nothing any more.
    virtual bool setToIdentity() = 0;
    /// A rotation about an axis through a point, by an angle in radians, anticlockwise as seen from
    /// the tip of the axis. False for null, and for an axis of length 0.
    virtual bool setToRotation(double angle, const Ptr<Vector3D>& axis,
                               const Ptr<Point3D>& origin) = 0;
    /// Places the axes and the origin as given; false for null.
    virtual bool setWithCoordinateSystem(const Ptr<Point3D>& origin, const Ptr<Vector3D>& xAxis,
                                         const Ptr<Vector3D>& yAxis,
                                         const Ptr<Vector3D>& zAxis) = 0;
    /// Where it places the origin and the axes.
    virtual bool getAsCoordinateSystem(Ptr<Point3D>& origin, Ptr<Vector3D>& xAxis,
                                       Ptr<Vector3D>& yAxis, Ptr<Vector3D>& zAxis) const = 0;

    /// Is followed by another placement; false for null.
    virtual bool transformBy(const Ptr<Matrix3D>& matrix) = 0;
    /// Takes back what it did; false, unchanged, for one that flattens space.
    virtual bool invert() = 0;
    /// The volume of a placed cube of volume 1, negative for one that is mirrored.
    [[nodiscard]] virtual double determinant() const = 0;
    /// A new matrix like this one.
    [[nodiscard]] virtual Ptr<Matrix3D> copy() const = 0;
    /// Whether no cell differs by more than 1e-6; false for null.
    [[nodiscard]] virtual bool isEqualTo(const Ptr<Matrix3D>& matrix) const = 0;
};

}  // namespace adsk::core
