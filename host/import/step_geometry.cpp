#include "host/import/step_geometry.h"

#include "host/import/reader_answer.h"

#include <nlohmann/json.hpp>

#include <array>
#include <charconv>
#include <mutex>
#include <stdexcept>
#include <utility>

namespace host {
namespace {

using nlohmann::json;

/// The reader's answer; throws why there is none.
json ask(ReaderConnection& reader, const std::string& request, const std::string& file) {
    try {
        return answerOf(reader, request);
    } catch (const std::runtime_error& failure) {
        throw std::runtime_error(file + ": a shape cannot be measured: " + failure.what());
    }
}

/// All significant digits, with a point whatever the process' locale is.
void append(std::string& text, double value) {
    std::array<char, 32> digits = {};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    text += ' ';
    text.append(digits.data(), result.ptr);
}

}  // namespace

StepGeometry::StepGeometry(std::shared_ptr<ReaderConnection> reader, int shape, std::string file,
                           std::size_t bodies)
    : reader_(std::move(reader)), shape_(shape), file_(std::move(file)), bodies_(bodies) {}

double StepGeometry::area() {
    measure();
    return area_;
}

double StepGeometry::volume() {
    measure();
    return volume_;
}

std::optional<Box> StepGeometry::box(const Transform& placement) {
    std::string request = "box " + std::to_string(shape_);
    for (std::size_t cell = 0; cell < 12; ++cell) {
        append(request, placement.cells[cell]);
    }
    const json answer = ask(*reader_, request, file_);
    if (!answer.contains("min")) {
        return std::nullopt;
    }
    return Box{.min = answer["min"].get<std::array<double, 3>>(),
               .max = answer["max"].get<std::array<double, 3>>()};
}

void StepGeometry::measure() {
    const std::lock_guard measuring(measuring_);
    if (!std::exchange(measured_, true)) {
        try {
            const json answer = ask(*reader_, "measure " + std::to_string(shape_), file_);
            area_ = answer.at("area");
            volume_ = answer.at("volume");
        } catch (const std::exception& error) {
            failure_ = error.what();
        }
    }
    if (!failure_.empty()) {
        throw std::runtime_error(failure_);
    }
}

}  // namespace host
