#include "host/import/reader/measurements.h"

#include <Standard_Failure.hxx>

#include <algorithm>
#include <cmath>
#include <exception>
#include <system_error>
#include <utility>

namespace step {
namespace {

Measurement measured(const TopoDS_Shape& shape) {
    try {
        const Size size = sizeOf(shape);
        if (!std::isfinite(size.area) || !std::isfinite(size.volume)) {
            return {.size = {}, .failure = "its surfaces enclose nothing that could be measured"};
        }
        return {.size = size, .failure = {}};
    } catch (const Standard_Failure& failure) {
        return {.size = {}, .failure = failure.GetMessageString()};
    } catch (const std::exception& failure) {
        return {.size = {}, .failure = failure.what()};
    }
}

}  // namespace

Measurements::Measurements(const TopTools_IndexedMapOfShape& shapes)
    : shapes_(shapes),
      claimed_(static_cast<std::size_t>(shapes.Extent())),
      results_(static_cast<std::size_t>(shapes.Extent())) {}

Measurements::~Measurements() {
    {
        const std::scoped_lock lock(mutex_);
        stopping_ = true;
    }
    for (std::thread& other : others_) {
        other.join();
    }
}

Measurement Measurements::of(std::size_t shape) {
    if (!std::exchange(started_, true)) {
        startOthers();
    }
    if (claim(shape)) {
        work(shape);
    }
    std::unique_lock lock(mutex_);
    done_.wait(lock, [&] { return results_[shape].has_value(); });
    return *results_[shape];
}

void Measurements::startOthers() {
    const auto helpers =
        std::min<std::size_t>(std::max(std::thread::hardware_concurrency(), 1U), results_.size());
    try {
        for (std::size_t helper = 1; helper < helpers; ++helper) {
            others_.emplace_back([this] {
                for (std::size_t shape = 0; shape < results_.size(); ++shape) {
                    if (claim(shape)) {
                        work(shape);
                    }
                }
            });
        }
    } catch (const std::system_error&) {
        // No further threads: the one that asks measures everything.
    }
}

bool Measurements::claim(std::size_t shape) {
    const std::scoped_lock lock(mutex_);
    if (stopping_ || claimed_[shape]) {
        return false;
    }
    claimed_[shape] = true;
    return true;
}

void Measurements::work(std::size_t shape) {
    Measurement result = measured(shapes_(static_cast<int>(shape) + 1));
    const std::scoped_lock lock(mutex_);
    results_[shape] = std::move(result);
    done_.notify_all();
}

}  // namespace step
