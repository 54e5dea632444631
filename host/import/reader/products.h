#pragma once

#include "host/import/reader/assembly.h"

namespace step {

/// Appends the components of the newest file of an assembly, with their uses, and returns which of
/// them are used by none: the roots of that file.
///
/// A product without shape and without children is no root where others have either: AP242 files
/// hold materials and documents as products too.
std::vector<std::size_t> addProducts(Assembly& assembly);

}  // namespace step
