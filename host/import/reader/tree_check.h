#pragma once

#include "host/import/reader/assembly.h"

namespace step {

/// Throws `ReadError` for a product that contains itself, naming the way round, and for a tree that
/// would grow beyond the limits. Counts without opening the tree: its cost grows with the products
/// and their uses, however many occurrences these make.
void checkTree(const Assembly& assembly, const host::ReadingLimits& limits);

}  // namespace step
