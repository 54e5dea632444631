#include "host/import/reader/measurements.h"

#include "host/import/reader/failure_text.h"

#include <cmath>
#include <stdexcept>

namespace step {
namespace {

Measurement measured(const TopoDS_Shape& shape) {
    Measurement result;
    result.failure =
        failureIn([&] {
            const Size size = sizeOf(shape);
            if (!std::isfinite(size.area) || !std::isfinite(size.volume)) {
                throw std::runtime_error("its surfaces enclose nothing that could be measured");
            }
            result.size = size;
        }).text;
    return result;
}

}  // namespace

Measurements::Measurements(const TopTools_IndexedMapOfShape& shapes)
    : ParallelResults(static_cast<std::size_t>(shapes.Extent()), [&shapes](std::size_t shape) {
          return measured(shapes(static_cast<int>(shape) + 1));
      }) {}

}  // namespace step
