#pragma once

#include "host/import/reader/assembly.h"

#include "host/design/shape_data.h"

#include <STEPConstruct_Styles.hxx>
#include <StepVisual_StyledItem.hxx>
#include <TopoDS_TShape.hxx>

#include <cstddef>
#include <optional>
#include <unordered_map>

namespace step {

/// The colours that a file gives to solids, shells and faces, by what these have in common wherever
/// they are placed.
using Colours = std::unordered_map<const TopoDS_TShape*, host::Rgba>;

/// The bodies that an instance colours apart from others in its part, by what they have in common
/// wherever they are placed, and their numbers.
using BodyNumbers = std::unordered_map<const TopoDS_TShape*, std::size_t>;

/// What decides how the faces of a shape are grouped.
struct Paint {
    Colours colours;
    BodyNumbers bodies;
};

/// The colours of an assembly whose shapes are built. Those of instances are left out.
Colours coloursOf(const Assembly& assembly);

/// Whether a style is for an instance alone, and not for its part.
bool isOfInstance(const Handle(StepVisual_StyledItem) & style);

/// What a style says of surfaces; nothing for one of curves alone.
std::optional<host::Rgba> surfaceColourOf(const STEPConstruct_Styles& styles,
                                          const Handle(StepVisual_StyledItem) & style);

}  // namespace step
