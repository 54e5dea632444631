#pragma once

#include "host/base/api_names.h"

#include <Core/Geometry.h>
#include <Fusion/Occurrence.h>

#include <vector>

namespace host {

class ComponentObject;
class History;

/// Places occurrences so that each lies, seen from `top`, by the transform at its place.
///
/// Assemblies go first, so that what is in them ends where it was asked to be. An occurrence's
/// place belongs to the component that holds it: where that is used several times, it moves in all
/// uses. False, with nothing moved and the reason noted, for lists of different length, missing
/// entries, occurrences not seen from `top`, and an assembly whose placement has no way back. What
/// was moved is noted in `history`.
bool placeOccurrences(const ComponentObject& top,
                      const std::vector<core::Ptr<fusion::Occurrence>>& occurrences,
                      const std::vector<core::Ptr<core::Matrix3D>>& transforms, History& history);

}  // namespace host
