#include "host/import/reader/mesh_builder.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRepLProp_SLProps.hxx>
#include <BRep_Tool.hxx>
#include <NCollection_DataMap.hxx>
#include <Poly_PolygonOnTriangulation.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedDataMapOfShapeListOfShape.hxx>
#include <TopTools_ShapeMapHasher.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Iterator.hxx>
#include <gp_Pln.hxx>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

namespace step {
namespace {

struct Colour {
    std::optional<host::Rgba> value;
    bool ofFaces = false;
    std::optional<std::size_t> body;
};

void append(std::vector<float>& values, const gp_XYZ& point) {
    for (int axis = 1; axis <= 3; ++axis) {
        const auto value = static_cast<float>(point.Coord(axis));
        if (!std::isfinite(value)) {
            throw std::runtime_error("a point of its surfaces is nowhere");
        }
        values.push_back(value);
    }
}

/// Triangles of the same colour follow each other; colours are in the order in which they are met.
class TriangleGroups {
public:
    std::vector<std::uint32_t>& of(const Colour& colour) {
        const auto [found, isNew] = numbers_.try_emplace(keyOf(colour), indices_.size());
        if (isNew) {
            colours_.push_back(colour);
            indices_.emplace_back();
        }
        return indices_[found->second];
    }

    void moveTo(host::ShapeMesh& mesh) const {
        for (std::size_t number = 0; number < indices_.size(); ++number) {
            mesh.groups.push_back({.firstIndex = mesh.indices.size(),
                                   .indexCount = indices_[number].size(),
                                   .colour = colours_[number].value,
                                   .ofFaces = colours_[number].ofFaces,
                                   .body = colours_[number].body});
            mesh.indices.insert(mesh.indices.end(), indices_[number].begin(),
                                indices_[number].end());
        }
    }

private:
    using Key = std::pair<std::int64_t, std::optional<std::size_t>>;

    static Key keyOf(const Colour& colour) {
        return {colour.value ? numberOf(colour) : -1, colour.body};
    }

    static std::int64_t numberOf(const Colour& colour) {
        return (std::int64_t{colour.ofFaces ? 1 : 0} << 32U) +
               (std::int64_t{colour.value->red} << 24U) +
               (std::int64_t{colour.value->green} << 16U) +
               (std::int64_t{colour.value->blue} << 8U) + colour.value->alpha;
    }

    std::map<Key, std::size_t> numbers_;
    std::vector<Colour> colours_;
    std::vector<std::vector<std::uint32_t>> indices_;
};

class MeshBuilder {
public:
    explicit MeshBuilder(const Paint& paint) : paint_(paint) {}

    /// The nearest colour above a face is its own.
    void addFaces(const TopoDS_Shape& original, const TopoDS_Shape& meshed, Colour colour) {
        const TopoDS_TShape* const part = original.TShape().get();
        if (const auto found = paint_.colours.find(part); found != paint_.colours.end()) {
            colour.value = found->second;
            colour.ofFaces = original.ShapeType() == TopAbs_FACE;
        }
        if (const auto found = paint_.bodies.find(part); found != paint_.bodies.end()) {
            colour.body = found->second;
        }
        if (meshed.ShapeType() == TopAbs_FACE) {
            addFace(TopoDS::Face(meshed), colour);
            return;
        }
        TopoDS_Iterator from(original);
        for (TopoDS_Iterator to(meshed); to.More() && from.More(); to.Next(), from.Next()) {
            addFaces(from.Value(), to.Value(), colour);
        }
    }

    void addEdges(const TopoDS_Shape& meshed) {
        TopTools_IndexedDataMapOfShapeListOfShape edges;
        TopExp::MapShapesAndUniqueAncestors(meshed, TopAbs_EDGE, TopAbs_FACE, edges);
        for (int at = 1; at <= edges.Extent(); ++at) {
            addEdge(TopoDS::Edge(edges.FindKey(at)), edges(at));
        }
    }

    BuiltMesh result() {
        groups_.moveTo(mesh_);
        return {.mesh = std::move(mesh_), .facesWithout = facesWithout_};
    }

private:
    void addFace(const TopoDS_Face& face, const Colour& colour) {
        TopLoc_Location location;
        const Handle(Poly_Triangulation) triangulation = BRep_Tool::Triangulation(face, location);
        if (triangulation.IsNull()) {
            ++facesWithout_;
            return;
        }
        const auto first = static_cast<std::uint32_t>(mesh_.positionsMm.size() / 3);
        firstPoints_.Bind(face, first);
        const bool isReversed = face.Orientation() == TopAbs_REVERSED;
        for (int node = 1; node <= triangulation->NbNodes(); ++node) {
            append(mesh_.positionsMm,
                   triangulation->Node(node).Transformed(location.Transformation()).XYZ());
        }
        addNormals(face, *triangulation, isReversed ? -1 : 1);
        std::vector<std::uint32_t>& indices = groups_.of(colour);
        for (int number = 1; number <= triangulation->NbTriangles(); ++number) {
            int one = 0;
            int two = 0;
            int three = 0;
            triangulation->Triangle(number).Get(one, two, three);
            if (isReversed) {
                std::swap(two, three);
            }
            for (const int node : {one, two, three}) {
                indices.push_back(first + static_cast<std::uint32_t>(node) - 1);
            }
        }
    }

    void addNormals(const TopoDS_Face& face, Poly_Triangulation& triangulation, double sign) {
        const BRepAdaptor_Surface surface(face);
        if (surface.GetType() == GeomAbs_Plane) {
            // Most faces are plane.
            const gp_Ax3 frame = surface.Plane().Position();
            const gp_XYZ normal = frame.XDirection().Crossed(frame.YDirection()).XYZ() * sign;
            for (int node = 1; node <= triangulation.NbNodes(); ++node) {
                append(mesh_.normals, normal);
            }
            return;
        }
        addCurvedNormals(surface, face.Location().Transformation(), triangulation, sign);
    }

    /// Those of the surface; where it has none, as at the tip of a cone, those of the triangles.
    void addCurvedNormals(const BRepAdaptor_Surface& surface, const gp_Trsf& placement,
                          Poly_Triangulation& triangulation, double sign) {
        triangulation.ComputeNormals();
        BRepLProp_SLProps properties(surface, 1, Precision::Confusion());
        for (int node = 1; node <= triangulation.NbNodes(); ++node) {
            gp_Dir normal = triangulation.Normal(node).Transformed(placement);
            if (triangulation.HasUVNodes()) {
                const gp_Pnt2d place = triangulation.UVNode(node);
                properties.SetParameters(place.X(), place.Y());
                normal = properties.IsNormalDefined() ? properties.Normal() : normal;
            }
            append(mesh_.normals, normal.XYZ() * sign);
        }
    }

    /// The points of an edge on one of its faces, by their numbers in the mesh.
    [[nodiscard]] std::vector<std::uint32_t> pointsOn(const TopoDS_Face& face,
                                                      const TopoDS_Edge& edge) const {
        std::vector<std::uint32_t> points;
        TopLoc_Location location;
        const Handle(Poly_Triangulation) triangulation = BRep_Tool::Triangulation(face, location);
        if (triangulation.IsNull() || !firstPoints_.IsBound(face)) {
            return points;
        }
        const Handle(Poly_PolygonOnTriangulation) polygon =
            BRep_Tool::PolygonOnTriangulation(edge, triangulation, location);
        for (int at = 1; !polygon.IsNull() && at <= polygon->NbNodes(); ++at) {
            points.push_back(firstPoints_(face) + static_cast<std::uint32_t>(polygon->Node(at)) -
                             1);
        }
        return points;
    }

    void addEdge(const TopoDS_Edge& edge, const TopTools_ListOfShape& faces) {
        if (BRep_Tool::Degenerated(edge) || faces.IsEmpty() ||
            BRep_Tool::IsClosed(edge, TopoDS::Face(faces.First()))) {
            return;
        }
        const std::vector<std::uint32_t> points = pointsOn(TopoDS::Face(faces.First()), edge);
        if (points.size() < 2 ||
            (faces.Extent() == 2 && isSmooth(points, pointsOn(TopoDS::Face(faces.Last()), edge)))) {
            return;
        }
        for (const std::uint32_t point : points) {
            const auto from = mesh_.positionsMm.begin() + std::ptrdiff_t{3} * point;
            mesh_.edgePointsMm.insert(mesh_.edgePointsMm.end(), from, from + 3);
        }
        mesh_.edgeEnds.push_back(static_cast<std::uint32_t>(mesh_.edgePointsMm.size() / 3));
    }

    /// Whether the faces on both sides of an edge have the same normals along it, nearly.
    [[nodiscard]] bool isSmooth(const std::vector<std::uint32_t>& points,
                                const std::vector<std::uint32_t>& others) const {
        constexpr float kCosine = 0.98F;  // of 11 degrees
        if (points.size() != others.size()) {
            return false;
        }
        for (std::size_t at = 0; at < points.size(); ++at) {
            const float* const one = &mesh_.normals[std::size_t{3} * points[at]];
            const float* const other = &mesh_.normals[std::size_t{3} * others[at]];
            if (one[0] * other[0] + one[1] * other[1] + one[2] * other[2] < kCosine) {
                return false;
            }
        }
        return true;
    }

    const Paint& paint_;
    host::ShapeMesh mesh_;
    TriangleGroups groups_;
    std::size_t facesWithout_ = 0;
    NCollection_DataMap<TopoDS_Shape, std::uint32_t, TopTools_ShapeMapHasher> firstPoints_;
};

}  // namespace

BuiltMesh meshFrom(const TopoDS_Shape& original, const TopoDS_Shape& meshed, const Paint& paint) {
    MeshBuilder builder(paint);
    builder.addFaces(original, meshed, {});
    builder.addEdges(meshed);
    return builder.result();
}

}  // namespace step
