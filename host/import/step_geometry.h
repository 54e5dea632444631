#pragma once

#include "host/design/design_data.h"
#include "host/import/reader_connection.h"

#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace host {

/// A shape that a reader holds, measured once, on demand.
///
/// A reader that fails throws a `std::runtime_error` with the file and the reason: for this
/// question, and where it crashed or was ended for every later one.
class StepGeometry final : public Geometry {
public:
    /// The number of the shape is the reader's, which counted its bodies; `file` names the source
    /// in the text of a failure.
    StepGeometry(std::shared_ptr<ReaderConnection> reader, int shape, std::string file,
                 std::size_t bodies = 1);

    double area() override;
    double volume() override;
    std::size_t bodies() override { return bodies_; }
    std::optional<Box> box(const Transform& placement) override;

    [[nodiscard]] ReaderConnection& reader() const { return *reader_; }
    [[nodiscard]] int shape() const { return shape_; }

private:
    void measure();

    std::shared_ptr<ReaderConnection> reader_;
    int shape_;
    std::string file_;
    std::size_t bodies_;
    std::mutex measuring_;  ///< shapes are read beside the thread that asks for measures
    bool measured_ = false;
    std::string failure_;  ///< why it could not be measured; empty when it could
    double area_ = 0;
    double volume_ = 0;
};

/// Curves that a reader holds.
class StepCurves final : public Curves {
public:
    /// The number of the curves is the reader's.
    StepCurves(std::shared_ptr<ReaderConnection> reader, int number)
        : reader_(std::move(reader)), number_(number) {}

    [[nodiscard]] ReaderConnection& reader() const { return *reader_; }
    [[nodiscard]] int number() const { return number_; }

private:
    std::shared_ptr<ReaderConnection> reader_;
    int number_;
};

}  // namespace host
