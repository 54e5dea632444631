#pragma once

#include <STEPControl_Reader.hxx>

namespace step {

/// Has a reader complete what it read of a file before anything else looks at it. To be called
/// before the file is read.
///
/// Open CASCADE crashes, while it finds out which entities refer to which, at a style that names no
/// context at all, `CONTEXT_DEPENDENT_OVER_RIDING_STYLED_ITEM(..., ())`: it gets an empty list.
void completeModels(STEPControl_Reader& reader);

}  // namespace step
