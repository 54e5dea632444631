#pragma once

#include "host/import/reader/measure.h"

#include <TopTools_IndexedMapOfShape.hxx>

#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace step {

/// What came of measuring a shape.
struct Measurement {
    Size size;
    std::string failure;  ///< why it has no size; empty where it has one
};

/// The sizes of shapes, each worked out once and on all processors.
///
/// The first question starts the work on the others: who asks for one usually asks for all. Each
/// shape is measured whole by one thread, so the results are those of measuring them in sequence.
class Measurements {
public:
    /// The shapes have to live as long.
    explicit Measurements(const TopTools_IndexedMapOfShape& shapes);
    Measurements(const Measurements&) = delete;
    Measurements& operator=(const Measurements&) = delete;

    /// Waits for the shapes that are being measured.
    ~Measurements();

    /// The size of a shape, counted from 0, which has to be one of them.
    Measurement of(std::size_t shape);

private:
    void startOthers();
    bool claim(std::size_t shape);
    void work(std::size_t shape);

    const TopTools_IndexedMapOfShape& shapes_;
    bool started_ = false;
    std::vector<std::thread> others_;
    std::mutex mutex_;  ///< guards what follows
    std::condition_variable done_;
    bool stopping_ = false;
    std::vector<bool> claimed_;
    std::vector<std::optional<Measurement>> results_;
};

}  // namespace step
