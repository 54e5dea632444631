#include "host/design/placing.h"

#include "host/base/last_error.h"
#include "host/design/component_object.h"
#include "host/design/geometry_objects.h"
#include "host/design/history.h"
#include "host/design/transform.h"

#include <Core/Enums.h>

#include <algorithm>
#include <cstddef>
#include <optional>

namespace host {
namespace {

struct Move {
    OccurrenceObject* occurrence = nullptr;
    Transform target;
    std::size_t depth = 0;
    Transform before;
};

std::optional<Move> readMove(const ComponentObject& top,
                             const core::Ptr<fusion::Occurrence>& occurrence,
                             const core::Ptr<core::Matrix3D>& matrix) {
    auto* object = dynamic_cast<OccurrenceObject*>(occurrence.get());
    const std::optional<Transform> target = transformOf(matrix);
    if (object == nullptr || object->top() != &top || !target) {
        return std::nullopt;
    }
    return Move{.occurrence = object,
                .target = *target,
                .depth = object->depth(),
                .before = object->localPlacement()};
}

bool apply(const Move& move) {
    const OccurrenceObject* assembly = move.occurrence->parent();
    const std::optional<Transform> back = inverse(assembly ? assembly->placement() : Transform());
    if (back) {
        move.occurrence->localPlacement() = *back * move.target;
    }
    return back.has_value();
}

}  // namespace

bool placeOccurrences(const ComponentObject& top,
                      const std::vector<core::Ptr<fusion::Occurrence>>& occurrences,
                      const std::vector<core::Ptr<core::Matrix3D>>& transforms, History& history) {
    if (occurrences.size() != transforms.size()) {
        return fail(core::BadApiCallError, "each occurrence needs one transform");
    }
    std::vector<Move> moves;
    for (std::size_t index = 0; index < occurrences.size(); ++index) {
        const std::optional<Move> move = readMove(top, occurrences[index], transforms[index]);
        if (!move) {
            return fail(core::BadApiCallError,
                        "only occurrences as the root component shows them can be placed");
        }
        moves.push_back(*move);
    }
    std::stable_sort(moves.begin(), moves.end(),
                     [](const Move& left, const Move& right) { return left.depth < right.depth; });
    if (!std::all_of(moves.begin(), moves.end(), apply)) {
        for (const Move& move : moves) {
            move.occurrence->localPlacement() = move.before;
        }
        return fail(core::InvalidGeometryError, "an assembly above it is flattened");
    }
    history.remember([moves] {
        for (const Move& move : moves) {
            if (move.occurrence->isValid()) move.occurrence->localPlacement() = move.before;
        }
    });
    return true;
}

}  // namespace host
