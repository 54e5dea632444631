#pragma once

#include "host/import/reader/measure.h"
#include "host/import/reader/parallel_results.h"

#include <TopTools_IndexedMapOfShape.hxx>

#include <string>

namespace step {

/// What came of measuring a shape.
struct Measurement {
    Size size;
    std::string failure;  ///< why it has no size; empty where it has one
};

/// The sizes of shapes.
class Measurements : public ParallelResults<Measurement> {
public:
    /// The shapes have to live as long.
    explicit Measurements(const TopTools_IndexedMapOfShape& shapes);
};

}  // namespace step
