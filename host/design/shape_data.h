#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The shapes of a design as plain values: which are equal, what tells them apart, and how they are
/// drawn. A reader fills this in on request (host/import/read_shapes.h); a design whose measures
/// are declared has none of it. Nothing here knows a modeller.
///
/// Shapes are in the frame of their component, whose placements are in cm (design_data.h); what is
/// drawn is in mm and named so.
namespace host {

/// What is the same for equal shapes, however they are placed, and different for most others.
///
/// It stands in for the shape where that is no longer there, as in a comparison of two files.
struct ShapeInvariants {
    double volume = 0;  ///< cm3
    double area = 0;    ///< cm2

    /// Principal second moments about the centroid, ascending: of the volume, in cm5, or of the
    /// area, in cm4, where nothing is enclosed.
    std::array<double, 3> secondMoments = {};

    /// Third moments of the faces' areas, each at the centroid of its face, without a unit: two
    /// that say how large they are, and two that change their sign in a mirror image.
    std::array<double, 4> thirdMoments = {};

    std::size_t solids = 0;
    std::size_t shells = 0;
    std::size_t faces = 0;
    std::size_t edges = 0;
    std::size_t vertices = 0;
    std::vector<double> faceAreas;  ///< ascending, in cm2

    bool operator==(const ShapeInvariants&) const = default;
};

/// A colour as a file states it: sRGB; 255 is opaque.
struct Rgba {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 255;

    bool operator==(const Rgba&) const = default;
};

/// Consecutive triangles of one colour.
struct MeshGroup {
    std::size_t firstIndex = 0;  ///< into `ShapeMesh::indices`
    std::size_t indexCount = 0;  ///< three for each triangle
    std::optional<Rgba> colour;  ///< none where the file gives none
    bool ofFaces = false;        ///< it is stated for faces, not for what these are part of
    std::optional<std::size_t> body = {};  ///< of those that `InstanceColour::body` names

    bool operator==(const MeshGroup&) const = default;
};

/// How close a mesh is to its shape.
enum class MeshDetail { Fine, Coarse, Box };

/// A shape as triangles and lines.
struct ShapeMesh {
    MeshDetail detail = MeshDetail::Fine;
    std::vector<float> positionsMm;       ///< x, y, z of each point
    std::vector<float> normals;           ///< of each point, of length 1
    std::vector<std::uint32_t> indices;   ///< three points for each triangle, seen from outside
                                          ///< against the clock
    std::vector<MeshGroup> groups;        ///< all triangles, in their order
    std::vector<float> edgePointsMm;      ///< x, y, z of the points of all feature edges
    std::vector<std::uint32_t> edgeEnds;  ///< for each feature edge the number of points up to its
                                          ///< last one

    [[nodiscard]] std::size_t triangles() const { return indices.size() / 3; }
    [[nodiscard]] bool isVisible() const { return !indices.empty() || !edgeEnds.empty(); }

    bool operator==(const ShapeMesh&) const = default;
};

/// One shape. What was not asked for, or could not be worked out, is missing.
struct Shape {
    /// Equal numbers are equal shapes up to a movement; a mirror image is another shape. Numbers
    /// start at 0 in each design and mean nothing outside it.
    std::optional<int> shapeClass;
    std::optional<ShapeInvariants> invariants;
    std::optional<ShapeMesh> mesh;
    std::string problem;  ///< why something is missing or a box; empty where nothing is wrong
};

/// One step from a component to what is in it.
struct InstanceStep {
    std::size_t component = 0;
    std::size_t child = 0;  ///< the index in its children

    bool operator==(const InstanceStep&) const = default;
};

/// The colour of an instance that differs from that of its part. It holds for all in the instance,
/// or for one of several bodies, but for faces that have a colour of their own; outer instances
/// win.
struct InstanceColour {
    std::vector<InstanceStep> path;  ///< the last steps that lead to it, one at least
    Rgba colour;
    std::optional<std::size_t> body = {};  ///< the body that it is for; none for all

    bool operator==(const InstanceColour&) const = default;
};

struct ShapeData {
    /// For each component of the design the index of its shape; none without bodies of its own.
    std::vector<std::optional<std::size_t>> ofComponent;
    std::vector<Shape> shapes;
    std::vector<InstanceColour> instanceColours;

    /// The shape of a component, which may be beyond `ofComponent`; null without any.
    [[nodiscard]] const Shape* of(std::size_t component) const {
        if (component >= ofComponent.size() || !ofComponent[component]) {
            return nullptr;
        }
        return &shapes[*ofComponent[component]];
    }

    /// The class of a component's shape.
    [[nodiscard]] std::optional<int> classOf(std::size_t component) const {
        const Shape* const shape = of(component);
        return shape == nullptr ? std::nullopt : shape->shapeClass;
    }
};

}  // namespace host
