#include "host/import/reader/shape_marks.h"

#include "host/import/reader/lengths.h"
#include "host/import/reader/spreads.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAdaptor_Surface.hxx>
#include <BRep_Tool.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedDataMapOfShapeListOfShape.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Vertex.hxx>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <stdexcept>
#include <tuple>

namespace step {
namespace {

constexpr double kRelativePosition = 1e-5;
constexpr double kLeastPosition = 1e-5;  // mm

double inCentimetres(double value, int power) {
    return value / std::pow(kMillimetresPerCentimetre, power);
}

/// Gathers the marks of one shape.
class MarkCollector {
public:
    explicit MarkCollector(const TopoDS_Shape& shape) : shape_(shape) {
        TopExp::MapShapes(shape, TopAbs_FACE, faces_);
        TopExp::MapShapes(shape, TopAbs_VERTEX, vertices_);
        TopExp::MapShapesAndAncestors(shape, TopAbs_EDGE, TopAbs_FACE, edges_);
    }

    ShapeMarks marks() {
        addFaces();
        addEdges();
        measureWhole();
        addLandmarks();
        return std::move(marks_);
    }

private:
    void addFaces() {
        for (int at = 1; at <= faces_.Extent(); ++at) {
            const TopoDS_Face& face = TopoDS::Face(faces_(at));
            marks_.faces.push_back({.kind = BRepAdaptor_Surface(face).GetType(),
                                    .area = areaSpread(face),
                                    .face = face});
        }
        std::sort(marks_.faces.begin(), marks_.faces.end(),
                  [](const FaceMark& one, const FaceMark& other) {
                      return one.area.centre.X() < other.area.centre.X();
                  });
    }

    void addEdges() {
        for (int at = 1; at <= edges_.Extent(); ++at) {
            const TopoDS_Edge& edge = TopoDS::Edge(edges_.FindKey(at));
            if (BRep_Tool::Degenerated(edge) || isSeam(edge, edges_(at))) {
                continue;
            }
            noteCorners(edge);
            marks_.edges.push_back(
                {.kind = BRepAdaptor_Curve(edge).GetType(), .length = lengthSpread(edge)});
        }
        std::sort(marks_.edges.begin(), marks_.edges.end(),
                  [](const EdgeMark& one, const EdgeMark& other) {
                      return one.length.centre.X() < other.length.centre.X();
                  });
    }

    static bool isSeam(const TopoDS_Edge& edge, const TopTools_ListOfShape& faces) {
        return std::any_of(faces.begin(), faces.end(), [&edge](const TopoDS_Shape& face) {
            return BRep_Tool::IsClosed(edge, TopoDS::Face(face));
        });
    }

    /// Where a closed edge begins says nothing about its shape.
    void noteCorners(const TopoDS_Edge& edge) {
        const TopoDS_Vertex first = TopExp::FirstVertex(edge);
        const TopoDS_Vertex last = TopExp::LastVertex(edge);
        if (!first.IsNull() && !last.IsNull() && !first.IsSame(last)) {
            corners_.Add(first);
            corners_.Add(last);
        }
    }

    void measureWhole() {
        std::vector<Spread> areas;
        for (const FaceMark& face : marks_.faces) {
            areas.push_back(face.area);
        }
        const Spread surface = sumOf(areas);
        const SolidSpreads solids = solidSpreads(shape_);
        const bool isSolid = solids.count > 0 && solids.whole.amount > 0;
        whole_ = isSolid ? solids.whole : surface;
        if (!std::isfinite(whole_.amount) || whole_.amount <= 0) {
            throw std::runtime_error("its surfaces enclose nothing that could be measured");
        }
        marks_.centre = whole_.centre;
        marks_.radius = std::sqrt(whole_.second.Diagonal().Dot({1, 1, 1}) / whole_.amount);
        for (int at = 1; at <= vertices_.Extent(); ++at) {
            marks_.radius = std::max(marks_.radius, (pointOf(at) - marks_.centre).Modulus());
        }
        principal_ = principalAxes(whole_.second);
        describe(surface, solids, isSolid);
    }

    void describe(const Spread& surface, const SolidSpreads& solids, bool isSolid) {
        host::ShapeInvariants& invariants = marks_.invariants;
        invariants.volume = isSolid ? inCentimetres(solids.whole.amount, 3) : 0;
        invariants.area = inCentimetres(surface.amount, 2);
        for (std::size_t axis = 0; axis < 3; ++axis) {
            invariants.secondMoments[axis] =
                inCentimetres(principal_.moments[axis], isSolid ? 5 : 4);
        }
        std::vector<Spread> areas;
        for (const FaceMark& face : marks_.faces) {
            areas.push_back(face.area);
            invariants.faceAreas.push_back(inCentimetres(face.area.amount, 2));
        }
        std::sort(invariants.faceAreas.begin(), invariants.faceAreas.end());
        invariants.thirdMoments = thirdMomentsOf(areas, surface);
        invariants.solids = solids.count;
        TopTools_IndexedMapOfShape shells;
        TopExp::MapShapes(shape_, TopAbs_SHELL, shells);
        invariants.shells = static_cast<std::size_t>(shells.Extent());
        invariants.faces = marks_.faces.size();
        invariants.edges = static_cast<std::size_t>(edges_.Extent());
        invariants.vertices = static_cast<std::size_t>(vertices_.Extent());
    }

    [[nodiscard]] gp_XYZ pointOf(int vertex) const {
        return BRep_Tool::Pnt(TopoDS::Vertex(vertices_(vertex))).XYZ();
    }

    void addLandmark(LandmarkKind kind, int type, double amount, const gp_XYZ& offset) {
        if (offset.Modulus() > positionTolerance(marks_)) {
            marks_.landmarks.push_back(
                {.kind = kind, .type = type, .amount = amount, .offset = offset});
        }
    }

    /// The surest ones first: where they are enough, the others are left out.
    void addLandmarks() {
        for (const FaceMark& face : marks_.faces) {
            addLandmark(LandmarkKind::Face, face.kind, face.area.amount,
                        face.area.centre - marks_.centre);
        }
        for (const EdgeMark& edge : marks_.edges) {
            addLandmark(LandmarkKind::Edge, edge.kind, edge.length.amount,
                        edge.length.centre - marks_.centre);
        }
        for (int at = 1; at <= vertices_.Extent(); ++at) {
            if (corners_.Contains(vertices_(at))) {
                addLandmark(LandmarkKind::Corner, 0, 0, pointOf(at) - marks_.centre);
            }
        }
        if (chooseFrame()) {
            return;
        }
        addPrincipalAxes();
        if (chooseFrame()) {
            return;
        }
        for (int at = 1; at <= vertices_.Extent(); ++at) {
            addLandmark(LandmarkKind::Vertex, 0, 0, pointOf(at) - marks_.centre);
        }
        chooseFrame();
    }

    /// An axis has two ends. Where two moments are equal, their axes can be any.
    void addPrincipalAxes() {
        constexpr double kDistinct = 1e-4;
        const std::array<double, 3>& moments = principal_.moments;
        const double least = kDistinct * moments[2];
        const bool lowApart = moments[1] - moments[0] > least;
        const bool highApart = moments[2] - moments[1] > least;
        const std::array<bool, 3> apart = {lowApart, lowApart && highApart, highApart};
        for (std::size_t axis = 0; axis < apart.size(); ++axis) {
            if (apart[axis]) {
                const gp_XYZ end = principal_.axes[axis] * marks_.radius;
                addLandmark(LandmarkKind::Axis, static_cast<int>(axis), 0, end);
                addLandmark(LandmarkKind::Axis, static_cast<int>(axis), 0, end.Reversed());
            }
        }
    }

    bool chooseFrame();

    const TopoDS_Shape& shape_;
    TopTools_IndexedMapOfShape faces_;
    TopTools_IndexedMapOfShape vertices_;
    TopTools_IndexedDataMapOfShapeListOfShape edges_;
    TopTools_MapOfShape corners_;
    Spread whole_;
    PrincipalAxes principal_;
    ShapeMarks marks_;
};

/// The landmarks in the order in which they fit a frame: those with the fewest like them, and of
/// these the farthest.
std::vector<Landmark> byRarity(const ShapeMarks& marks) {
    // Roughly alike is enough here: a wrong count costs a few more attempts.
    const auto sortOf = [&marks](const Landmark& landmark) {
        constexpr double kRadii = 1e4;
        constexpr double kAmounts = 1e3;
        return std::tuple(landmark.kind, landmark.type,
                          std::lround(std::log1p(landmark.amount) * kAmounts),
                          std::lround(landmark.offset.Modulus() / marks.radius * kRadii));
    };
    std::map<decltype(sortOf(Landmark())), std::size_t> counts;
    for (const Landmark& landmark : marks.landmarks) {
        ++counts[sortOf(landmark)];
    }
    std::vector<std::pair<std::size_t, const Landmark*>> ranked;
    for (const Landmark& landmark : marks.landmarks) {
        ranked.emplace_back(counts[sortOf(landmark)], &landmark);
    }
    std::stable_sort(ranked.begin(), ranked.end(), [](const auto& one, const auto& other) {
        return one.first != other.first
                   ? one.first < other.first
                   : one.second->offset.Modulus() > other.second->offset.Modulus();
    });
    std::vector<Landmark> sorted;
    for (const auto& [count, landmark] : ranked) {
        sorted.push_back(*landmark);
    }
    return sorted;
}

/// Two landmarks so far out and apart that they fix the rest well enough; fewer where there are
/// none.
std::vector<Landmark> frameOf(const std::vector<Landmark>& ranked, double radius, double least) {
    std::vector<Landmark> frame;
    for (const Landmark& landmark : ranked) {
        const double length = landmark.offset.Modulus();
        if (length < least * radius) {
            continue;
        }
        if (frame.empty()) {
            frame.push_back(landmark);
        } else if (frame.front().offset.Crossed(landmark.offset).Modulus() >
                   least * length * frame.front().offset.Modulus()) {
            frame.push_back(landmark);
            break;
        }
    }
    return frame;
}

/// Whether two were found.
bool MarkCollector::chooseFrame() {
    const std::vector<Landmark> ranked = byRarity(marks_);
    for (const double least : {0.2, 0.02, 0.002}) {
        marks_.frame = frameOf(ranked, marks_.radius, least);
        if (marks_.frame.size() == 2) {
            return true;
        }
    }
    return false;
}

}  // namespace

ShapeMarks marksOf(const TopoDS_Shape& shape) { return MarkCollector(shape).marks(); }

double positionTolerance(const ShapeMarks& shape) {
    return std::max(kRelativePosition * shape.radius, kLeastPosition);
}

}  // namespace step
