#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A design as a plain value: what an importer makes, what the design file holds, and what a
/// document is built from. Nothing here knows the public API.
///
/// Lengths are in cm, masses in kg, densities in kg/cm3: the host's units.
namespace host {

/// A placement: the rows of a 4 by 4 matrix, one after the other, translation in cm in the fourth
/// column.
struct Transform {
    std::array<double, 16> cells = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

    bool operator==(const Transform&) const = default;
};

/// A box along the axes, in cm.
struct Box {
    std::array<double, 3> min = {};
    std::array<double, 3> max = {};

    bool operator==(const Box&) const = default;
};

/// The bodies of one component, measured on demand.
///
/// One object serves all components that share the same shape, so a shape is measured once. What
/// cannot be measured throws a `std::exception` that says why, each time.
class Geometry {
public:
    virtual ~Geometry() = default;

    /// Surface, in cm2.
    virtual double area() = 0;

    /// Volume, in cm3.
    virtual double volume() = 0;

    /// How many bodies: solids, shells and faces that belong to no solid.
    virtual std::size_t bodies() { return 1; }

    /// The box around the bodies when they are placed by `placement`; none when there is no body.
    virtual std::optional<Box> box(const Transform& placement) = 0;
};

/// Curves of a component that has no bodies. They have no measures and no part in what a design
/// says of itself; who reads its shapes can draw them.
class Curves {
public:
    virtual ~Curves() = default;
};

struct MaterialData {
    std::string name;
    double density = 0;  ///< kg/cm3

    /// The source names none: the name is that of the host's default material.
    bool nameAssumed = false;
    /// The source has none that is understood: it is that of the host's default material.
    bool densityAssumed = false;

    bool operator==(const MaterialData&) const = default;
};

struct AttributeData {
    std::string group;
    std::string name;
    std::string value;

    bool operator==(const AttributeData&) const = default;
};

/// What a curve of a sketch is.
enum class SketchCurveKind {
    Unknown,
    Line,
    Arc,
    Circle,
    Ellipse,
    EllipticalArc,
    ConicCurve,
    FittedSpline,
    FixedSpline,
    ControlPointSpline,
};

struct SketchCurveData {
    bool reference = false;     ///< projected from elsewhere
    bool construction = false;  ///< only helps to draw
    SketchCurveKind kind = SketchCurveKind::Unknown;

    bool operator==(const SketchCurveData&) const = default;
};

struct SketchData {
    std::string name;
    std::vector<SketchCurveData> curves;

    bool operator==(const SketchData&) const = default;
};

/// One use of a component below another.
struct OccurrenceData {
    std::size_t component = 0;  ///< index into `DesignData::components`
    int instance = 1;           ///< the number after ":" in its name
    Transform transform = {};
    bool grounded = false;
    bool absent = false;  ///< a place in the list for which the host returns no occurrence
};

/// A component: named, measured and described once, used any number of times.
struct ComponentData {
    std::string name;
    std::string partNumber;
    std::string description;
    std::optional<MaterialData> material;
    std::vector<AttributeData> attributes;  ///< in the order they were made
    std::vector<OccurrenceData> children;
    std::shared_ptr<Geometry> geometry;  ///< null for a component without bodies of its own
    std::shared_ptr<Curves> curves;      ///< null for a component with bodies, and mostly without
    std::vector<SketchData> sketches;
    std::string document;  ///< the other document that it belongs to; empty for this design's own
    bool hasExplicitPartNumber =
        false;  ///< the part number was set: it does not follow the name any more
};

/// Where the shapes of a design come from.
struct SourceFile {
    std::string path;         ///< absolute
    std::string fingerprint;  ///< differs when the file is no longer the one that was read
};

struct DesignData {
    std::string name;  ///< the document's
    std::string unit;  ///< length unit of the file it was read from, such as "mm"
    std::vector<ComponentData> components;  ///< the first is the root component
    std::optional<SourceFile> source;
    std::vector<AttributeData> attributes;  ///< those of the design as a whole
};

}  // namespace host
