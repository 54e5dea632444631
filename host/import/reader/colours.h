#pragma once

#include "host/import/reader/assembly.h"

#include "host/design/shape_data.h"

#include <TopoDS_TShape.hxx>

#include <unordered_map>

namespace step {

/// The colours that a file gives to solids, shells and faces, by what these have in common wherever
/// they are placed.
using Colours = std::unordered_map<const TopoDS_TShape*, host::Rgba>;

/// The colours of an assembly whose shapes are built.
Colours coloursOf(const Assembly& assembly);

}  // namespace step
