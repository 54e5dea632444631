#include "host/import/reader/shape_classes.h"

#include "host/import/reader/shape_comparison.h"

#include <algorithm>
#include <cstddef>
#include <tuple>

namespace step {
namespace {

MarksResult marksResultOf(const TopoDS_Shape& shape) {
    MarksResult result;
    result.failure = failureIn([&] { result.marks = marksOf(shape); });
    return result;
}

auto countsOf(const host::ShapeInvariants& shape) {
    return std::tie(shape.faces, shape.edges, shape.vertices, shape.solids, shape.shells);
}

/// What is equal in all of this is equal, or as good as made to be told apart by comparing alone.
auto orderOf(const host::ShapeInvariants& shape) {
    return std::tuple_cat(countsOf(shape), std::tie(shape.area, shape.volume, shape.secondMoments,
                                                    shape.thirdMoments, shape.faceAreas));
}

/// The class whose first shape is equal to this one. Those with the same counts are the last ones.
std::optional<std::size_t> classOf(AllMarks& marks, std::size_t shape,
                                   const std::vector<std::size_t>& firsts) {
    const ShapeMarks& own = marks.of(shape).marks;
    for (std::size_t at = firsts.size(); at > 0; --at) {
        const ShapeMarks& first = marks.of(firsts[at - 1]).marks;
        if (countsOf(first.invariants) != countsOf(own.invariants)) {
            break;
        }
        if (areCongruent(first, own)) {
            return at - 1;
        }
    }
    return std::nullopt;
}

}  // namespace

AllMarks::AllMarks(const TopTools_IndexedMapOfShape& shapes)
    : ParallelResults(static_cast<std::size_t>(shapes.Extent()), [&shapes](std::size_t shape) {
          return marksResultOf(shapes(static_cast<int>(shape) + 1));
      }) {}

std::vector<std::optional<int>> classesOf(AllMarks& marks) {
    std::vector<std::size_t> order;
    for (std::size_t shape = 0; shape < marks.size(); ++shape) {
        if (marks.of(shape).failure.text.empty()) {
            order.push_back(shape);
        }
    }
    const auto invariants = [&marks](std::size_t shape) -> const host::ShapeInvariants& {
        return marks.of(shape).marks.invariants;
    };
    std::stable_sort(order.begin(), order.end(), [&](std::size_t one, std::size_t other) {
        return orderOf(invariants(one)) < orderOf(invariants(other));
    });
    std::vector<std::optional<int>> classes(marks.size());
    std::vector<std::size_t> firsts;  // of the classes
    for (const std::size_t shape : order) {
        const std::optional<std::size_t> known = classOf(marks, shape, firsts);
        classes[shape] = static_cast<int>(known.value_or(firsts.size()));
        if (!known) {
            firsts.push_back(shape);
        }
    }
    return classes;
}

}  // namespace step
