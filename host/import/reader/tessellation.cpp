#include "host/import/reader/tessellation.h"

#include "host/import/reader/failure_text.h"
#include "host/import/reader/mesh_builder.h"

#include "host/design/box_mesh.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepBndLib.hxx>
#include <BRepBuilderAPI_Copy.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <BRep_Tool.hxx>
#include <Bnd_Box.hxx>
#include <GCPnts_TangentialDeflection.hxx>
#include <IMeshTools_Parameters.hxx>
#include <Message_ProgressIndicator.hxx>
#include <Precision.hxx>
#include <TColStd_Array1OfReal.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace step {
namespace {

struct Attempt {
    host::MeshDetail detail;
    double deflection;  ///< times `TessellationLimits::deflection`
    double angle;       ///< times `TessellationLimits::angle`
    double time;        ///< of `TessellationLimits::seconds`
};

constexpr std::array<Attempt, 2> kAttempts = {
    {{host::MeshDetail::Fine, 1, 1, 1}, {host::MeshDetail::Coarse, 10, 3, 0.5}}};

constexpr double kLargestAngle = 1.5;  // nearly a right angle

/// Interrupts the mesher when its time is over.
class Deadline final : public Message_ProgressIndicator {
    DEFINE_STANDARD_RTTI_INLINE(Deadline, Message_ProgressIndicator)

public:
    explicit Deadline(double seconds)
        : end_(std::chrono::steady_clock::now() +
               std::chrono::duration_cast<std::chrono::steady_clock::duration>(
                   std::chrono::duration<double>(seconds))) {}

    [[nodiscard]] bool isOver() const { return std::chrono::steady_clock::now() > end_; }
    Standard_Boolean UserBreak() override { return isOver(); }

protected:
    void Show(const Message_ProgressScope& /*scope*/, Standard_Boolean /*force*/) override {}

private:
    std::chrono::steady_clock::time_point end_;
};

void checkTime(const Deadline& deadline, const char* what) {
    if (deadline.isOver()) {
        throw TookTooLong(std::string(what) + " take too long");
    }
}

/// Around the shape, by its surfaces; a little larger than it is.
Bnd_Box boxAround(const TopoDS_Shape& shape) {
    Bnd_Box box;
    BRepBndLib::Add(shape, box, /*useTriangulation=*/Standard_False);
    if (box.IsVoid() || box.IsOpen()) {
        throw std::runtime_error("it has no extent that could be found");
    }
    box.SetGap(0);
    return box;
}

/// Throws where the shape has no triangles, or too many.
Tessellation meshBy(const Attempt& attempt, const TopoDS_Shape& shape, double size,
                    const Paint& paint, const TessellationLimits& limits) {
    // The triangles are kept in the shape, which others read meanwhile, or share parts of.
    const TopoDS_Shape copy = BRepBuilderAPI_Copy(shape, /*copyGeom=*/Standard_False).Shape();
    IMeshTools_Parameters parameters;
    parameters.Deflection =
        std::max(attempt.deflection * limits.deflection * size, Precision::Confusion());
    parameters.Angle = std::min(attempt.angle * limits.angle, kLargestAngle);
    BRepMesh_IncrementalMesh mesher;
    mesher.SetShape(copy);
    mesher.ChangeParameters() = parameters;
    const Handle(Deadline) deadline = new Deadline(limits.seconds * attempt.time);
    mesher.Perform(deadline->Start());
    checkTime(*deadline, "its triangles");
    BuiltMesh built = meshFrom(shape, copy, paint);
    built.mesh.detail = attempt.detail;
    if (built.mesh.indices.empty()) {
        throw std::runtime_error("its surfaces have no triangles");
    }
    if (built.mesh.triangles() > limits.triangles) {
        throw std::runtime_error("it needs more than " + std::to_string(limits.triangles) +
                                 " triangles");
    }
    return {.mesh = std::move(built.mesh),
            .problem = built.facesWithout == 0 ? "" : "some of its faces cannot be drawn"};
}

float finite(double value) {
    const auto result = static_cast<float>(value);
    if (!std::isfinite(result)) {
        throw std::runtime_error("a point of its curves is nowhere");
    }
    return result;
}

void addCurve(host::ShapeMesh& mesh, const BRepAdaptor_Curve& curve, double angle,
              double deflection, const Deadline& deadline) {
    TColStd_Array1OfReal bounds(1, curve.NbIntervals(GeomAbs_C1) + 1);
    curve.Intervals(bounds, GeomAbs_C1);
    for (int interval = 1; interval < bounds.Upper(); ++interval) {
        checkTime(deadline, "its lines");
        // Around a corner there would be points without end.
        const GCPnts_TangentialDeflection points(curve, bounds(interval), bounds(interval + 1),
                                                 angle, deflection);
        for (int number = interval == 1 ? 1 : 2; number <= points.NbPoints(); ++number) {
            const gp_Pnt point = points.Value(number);
            for (int axis = 1; axis <= 3; ++axis) {
                mesh.edgePointsMm.push_back(finite(point.Coord(axis)));
            }
        }
    }
    mesh.edgeEnds.push_back(static_cast<std::uint32_t>(mesh.edgePointsMm.size() / 3));
}

/// Throws where there would be too many lines, or where they take too long.
host::ShapeMesh linesBy(const TopoDS_Shape& curves, double size, const TessellationLimits& limits) {
    host::ShapeMesh mesh;
    const double deflection = std::max(limits.deflection * size, Precision::Confusion());
    const Handle(Deadline) deadline = new Deadline(limits.seconds);
    for (TopExp_Explorer edges(curves, TopAbs_EDGE); edges.More(); edges.Next()) {
        const TopoDS_Edge& edge = TopoDS::Edge(edges.Current());
        if (!BRep_Tool::Degenerated(edge)) {
            addCurve(mesh, BRepAdaptor_Curve(edge), limits.angle, deflection, *deadline);
        }
        if (mesh.edgePointsMm.size() / 3 > limits.triangles) {
            throw std::runtime_error("it needs more than " + std::to_string(limits.triangles) +
                                     " lines");
        }
    }
    return mesh;
}

host::ShapeMesh boxOf(const Bnd_Box& box) {
    const gp_Pnt low = box.CornerMin();
    const gp_Pnt high = box.CornerMax();
    const auto cells = [](const gp_Pnt& point) {
        return std::array{static_cast<float>(point.X()), static_cast<float>(point.Y()),
                          static_cast<float>(point.Z())};
    };
    return host::boxMesh(cells(low), cells(high));
}

}  // namespace

Tessellation tessellate(const TopoDS_Shape& shape, const Paint& paint,
                        const TessellationLimits& limits) {
    Bnd_Box box;
    Failure failure = failureIn([&] { box = boxAround(shape); });
    if (!failure.text.empty()) {
        return {.mesh = {}, .problem = failure.text, .isByLimit = failure.isByLimit};
    }
    bool isByLimit = false;
    const double size = std::sqrt(box.SquareExtent());
    for (const Attempt& attempt : kAttempts) {
        Tessellation result;
        failure = failureIn([&] { result = meshBy(attempt, shape, size, paint, limits); });
        if (failure.text.empty()) {
            result.isByLimit = isByLimit;
            return result;
        }
        isByLimit = isByLimit || failure.isByLimit;
    }
    return {.mesh = boxOf(box), .problem = failure.text, .isByLimit = isByLimit};
}

Tessellation tessellateCurves(const TopoDS_Shape& curves, const TessellationLimits& limits) {
    Bnd_Box box;
    Failure failure = failureIn([&] { box = boxAround(curves); });
    if (!failure.text.empty()) {
        return {.mesh = {}, .problem = failure.text, .isByLimit = failure.isByLimit};
    }
    Tessellation result;
    const double size = std::sqrt(box.SquareExtent());
    failure = failureIn([&] { result.mesh = linesBy(curves, size, limits); });
    if (failure.text.empty()) {
        return result;
    }
    return {.mesh = boxOf(box), .problem = failure.text, .isByLimit = failure.isByLimit};
}

}  // namespace step
