#pragma once

#include "parts/parts_list.h"

#include "host/design/design_data.h"
#include "host/design/shape_data.h"

#include <string>
#include <vector>

/// What making a list of a design had to say beside the list. It is collected where the list is
/// made, which may be in a thread of many, and printed where the order of the files is known.
namespace workbench {

struct Remark {
    std::string kind = "warning";
    std::string text;

    bool operator==(const Remark&) const = default;
};

using Remarks = std::vector<Remark>;

/// Adds the warnings of a list; lists of one design mostly have the same ones, which are there
/// once.
void addWarnings(Remarks& remarks, const std::vector<parts::ListWarning>& warnings);

/// Adds that none of the rows is as the filters of a list say.
void addEmptyFilter(Remarks& remarks, const parts::PartsList& list);

/// Adds what is wrong with the shapes of a design, by the names of its components.
void addProblems(Remarks& remarks, const host::DesignData& design, const host::ShapeData& shapes);

/// Prints each on stderr, as "KIND: FILE: TEXT", without FILE where it is empty. With "--quiet"
/// nothing is printed.
void reportRemarks(const Remarks& remarks, const std::string& file);

}  // namespace workbench
