#pragma once

#include "host/import/reader/failure_text.h"
#include "host/import/reader/parallel_results.h"
#include "host/import/reader/shape_marks.h"

#include <TopTools_IndexedMapOfShape.hxx>

#include <optional>
#include <vector>

namespace step {

/// What came of looking at a shape.
struct MarksResult {
    ShapeMarks marks;
    Failure failure;  ///< why there are none
};

/// The marks of shapes.
class AllMarks : public ParallelResults<MarksResult> {
public:
    /// The shapes have to live as long.
    explicit AllMarks(const TopTools_IndexedMapOfShape& shapes);
};

/// For each shape the number of its class, which equal shapes share; none where it has no marks.
///
/// Shapes are compared with the first of each class, in an order that only their invariants decide:
/// the order of the file makes no difference.
std::vector<std::optional<int>> classesOf(AllMarks& marks);

}  // namespace step
