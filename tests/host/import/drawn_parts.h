#pragma once

#include "samples/product.h"

#include <string>
#include <utility>

/// Parts for STEP files that the generator of the samples writes.
namespace drafts {

/// A part whose id is its name.
inline samples::Product part(const std::string& name, samples::Solid solid) {
    return {.key = name, .id = name, .name = name, .solid = std::move(solid)};
}

/// A plate of so many mm around the z axis, or around a line beside it.
inline samples::Solid plate(double width, double depth, double height, double x = 0) {
    return {{{samples::rectangle(width, depth, {x, 0}), height}}, {}};
}

}  // namespace drafts
