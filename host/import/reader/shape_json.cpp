#include "host/import/reader/shape_json.h"

#include "host/base/base64.h"

#include <string_view>
#include <vector>

namespace step {
namespace {

using nlohmann::json;

/// As text the numbers would be four times as long, and most of the time would go into them. Both
/// programs run on the same machine.
template <class Number>
std::string packed(const std::vector<Number>& numbers) {
    return host::toBase64(
        {reinterpret_cast<const char*>(numbers.data()), numbers.size() * sizeof(Number)});
}

json jsonOf(const std::optional<host::Rgba>& colour) {
    return colour ? step::jsonOf(*colour) : json(nullptr);
}

json jsonOf(const host::ShapeMesh& mesh) {
    json groups = json::array();
    for (const host::MeshGroup& group : mesh.groups) {
        groups.push_back({{"indexCount", group.indexCount},
                          {"colour", jsonOf(group.colour)},
                          {"ofFaces", group.ofFaces}});
        if (group.body) {
            groups.back()["body"] = *group.body;
        }
    }
    return {{"detail", static_cast<int>(mesh.detail)},
            {"positionsMm", packed(mesh.positionsMm)},
            {"normals", packed(mesh.normals)},
            {"indices", packed(mesh.indices)},
            {"groups", groups},
            {"edgePointsMm", packed(mesh.edgePointsMm)},
            {"edgeEnds", packed(mesh.edgeEnds)}};
}

}  // namespace

json jsonOf(const host::ShapeInvariants& invariants) {
    return {{"volume", invariants.volume},
            {"area", invariants.area},
            {"secondMoments", invariants.secondMoments},
            {"thirdMoments", invariants.thirdMoments},
            {"solids", invariants.solids},
            {"shells", invariants.shells},
            {"faces", invariants.faces},
            {"edges", invariants.edges},
            {"vertices", invariants.vertices},
            {"faceAreas", invariants.faceAreas}};
}

json jsonOf(const host::Rgba& colour) {
    return json::array({colour.red, colour.green, colour.blue, colour.alpha});
}

json jsonOf(const Tessellation& tessellation) {
    json result = tessellation.mesh ? jsonOf(*tessellation.mesh) : json::object();
    if (!tessellation.problem.empty()) {
        result["problem"] = tessellation.problem;
    }
    if (tessellation.isByLimit) {
        result["again"] = true;
    }
    return result;
}

}  // namespace step
