#pragma once

#include <Core/CoreAll.h>

/// Folding as plainly as it can be written: every position is read where it is needed, and every
/// row after another is looked through again. Slow on purpose: the product's own is compared with
/// it.
namespace reference {

void collapseRows(const adsk::core::Ptr<adsk::core::TableCommandInput>& table, int row,
                  bool showChildren);

}  // namespace reference
