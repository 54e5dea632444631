#pragma once

#include "tarnix/bom/model/bom_row.h"

#include <Fusion/FusionAll.h>

#include <string>
#include <vector>

/// The merging walk and the row filter as plainly as they can be written, with every list scanned
/// from its start and every text asked of the host where it is needed. Slow on purpose: the
/// product's own are compared with these.
namespace reference {

std::vector<tarnix::BomRow> walkOccurrencesMerged(
    tarnix::BomModel& model, adsk::core::Ptr<adsk::fusion::OccurrenceList> occurrences, int level);

/// A row of the bill of materials.
struct ShownRow {
    int r = 0;                  ///< its place in the list, counted from 1
    bool underDivided = false;  ///< it was handed up

    bool operator==(const ShownRow&) const = default;
};

std::vector<ShownRow> shownRows(const std::vector<tarnix::BomRow>& rows);

}  // namespace reference
