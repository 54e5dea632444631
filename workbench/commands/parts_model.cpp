#include "workbench/commands/parts_model.h"

#include "parts/glb_packing.h"

#include "host/import/read_shapes.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace workbench {
namespace {

host::ShapeRequest shapesOf(const ModelRequest& request) {
    host::ShapeRequest shapes = {.meshes = true};
    shapes.maximumTriangles = request.maximumTriangles;
    switch (request.detail) {
        case ModelDetail::Coarse:
            shapes.deflection = 0.01;
            shapes.angle = 0.8;
            break;
        case ModelDetail::Normal:
            shapes.deflection = 0.002;
            shapes.angle = 0.5;
            break;
        case ModelDetail::Fine:
            shapes.deflection = 0.0005;
            shapes.angle = 0.2;
            break;
    }
    return shapes;
}

bool isVisible(const host::Shape& shape) { return shape.mesh && shape.mesh->isVisible(); }

std::ptrdiff_t countOf(const host::ShapeData& meshes, host::MeshDetail detail) {
    return std::ranges::count_if(meshes.shapes, [detail](const host::Shape& shape) {
        return isVisible(shape) && shape.mesh->detail == detail;
    });
}

Remark sizeOf(const parts::GlbCounts& counts, std::size_t bytes, const host::ShapeData& meshes,
              const ModelRequest& request) {
    std::string note = std::to_string(counts.meshes) + " meshes, " +
                       std::to_string(counts.triangles) + " triangles, " + sizeText(bytes);
    if (const std::ptrdiff_t coarse = countOf(meshes, host::MeshDetail::Coarse); coarse > 0) {
        note += "; drawn more coarsely: " + std::to_string(coarse);
    }
    if (const std::ptrdiff_t boxes = countOf(meshes, host::MeshDetail::Box); boxes > 0) {
        note += "; drawn as boxes: " + std::to_string(boxes);
    }
    if (!request.isPlain && !parts::canPack()) {
        note += "; not compressed, for which this build has no library";
    }
    return {.kind = "model", .text = note};
}

}  // namespace

host::ShapeData readMeshes(const host::DesignData& design, const ModelRequest& request,
                           ShapeMeasures measures, Remarks& remarks) {
    host::ShapeRequest wanted = shapesOf(request);
    wanted.measures = measures == ShapeMeasures::Needed;
    host::ShapeData shapes = host::readShapes(design, wanted);
    addProblems(remarks, design, shapes);
    return shapes;
}

bool isDrawn(const host::ShapeData& meshes) {
    return std::ranges::any_of(meshes.shapes, isVisible);
}

Model modelOf(const host::DesignData& design, const host::ShapeData& meshes,
              const ModelRequest& request, parts::GlbExtras extras) {
    std::ostringstream stream;
    const parts::GlbCounts counts = parts::writeGlb(
        design, meshes,
        {.packing = request.isPlain ? parts::GlbPacking::Plain : parts::GlbPacking::Compressed,
         .extras = extras},
        stream);
    Model model = {.bytes = std::move(stream).str(), .size = {}};
    model.size = sizeOf(counts, model.bytes.size(), meshes, request);
    return model;
}

std::string sizeText(std::size_t bytes) {
    constexpr std::size_t kBytesInKb = 1000;
    return std::to_string((bytes + kBytesInKb - 1) / kBytesInKb) + " kB";
}

}  // namespace workbench
