#include "host/import/reader/tessellation.h"

#include "host/import/reader/failure_text.h"
#include "host/import/reader/mesh_builder.h"

#include "host/design/box_mesh.h"

#include <BRepBndLib.hxx>
#include <BRepBuilderAPI_Copy.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <Bnd_Box.hxx>
#include <IMeshTools_Parameters.hxx>
#include <Message_ProgressIndicator.hxx>
#include <Precision.hxx>

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
    double deflection;  ///< of the shape's diagonal
    double angle;       ///< between neighbouring segments, in radians
    double time;        ///< of `TessellationLimits::seconds`
};

constexpr std::array<Attempt, 2> kAttempts = {
    {{host::MeshDetail::Fine, 0.001, 0.35, 1}, {host::MeshDetail::Coarse, 0.01, 1, 0.5}}};

/// Interrupts the mesher when its time is over.
class Deadline final : public Message_ProgressIndicator {
    DEFINE_STANDARD_RTTI_INLINE(Deadline, Message_ProgressIndicator)

public:
    explicit Deadline(double seconds)
        : end_(std::chrono::steady_clock::now() +
               std::chrono::duration_cast<std::chrono::steady_clock::duration>(
                   std::chrono::duration<double>(seconds))) {}

    Standard_Boolean UserBreak() override { return std::chrono::steady_clock::now() > end_; }

protected:
    void Show(const Message_ProgressScope& /*scope*/, Standard_Boolean /*force*/) override {}

private:
    std::chrono::steady_clock::time_point end_;
};

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
                    const Colours& colours, const TessellationLimits& limits) {
    // The triangles are kept in the shape, which others read meanwhile, or share parts of.
    const TopoDS_Shape copy = BRepBuilderAPI_Copy(shape, /*copyGeom=*/Standard_False).Shape();
    IMeshTools_Parameters parameters;
    parameters.Deflection = std::max(attempt.deflection * size, Precision::Confusion());
    parameters.Angle = attempt.angle;
    BRepMesh_IncrementalMesh mesher;
    mesher.SetShape(copy);
    mesher.ChangeParameters() = parameters;
    const Handle(Deadline) deadline = new Deadline(limits.seconds * attempt.time);
    mesher.Perform(deadline->Start());
    if (deadline->UserBreak()) {
        throw TookTooLong("its triangles take too long");
    }
    BuiltMesh built = meshFrom(shape, copy, colours);
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

Tessellation tessellate(const TopoDS_Shape& shape, const Colours& colours,
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
        failure = failureIn([&] { result = meshBy(attempt, shape, size, colours, limits); });
        if (failure.text.empty()) {
            result.isByLimit = isByLimit;
            return result;
        }
        isByLimit = isByLimit || failure.isByLimit;
    }
    return {.mesh = boxOf(box), .problem = failure.text, .isByLimit = isByLimit};
}

}  // namespace step
