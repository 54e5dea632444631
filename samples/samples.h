#pragma once

#include <string>
#include <vector>

/// Designs that this project made itself. Each is kept as a STEP file beside the generator; a test
/// compares the two.
namespace samples {

struct Sample {
    std::string file;  ///< its name
    std::string text;
};

/// A gearbox: sub-assemblies in sub-assemblies, one of them used twice and another three times in
/// it; a screw that hangs under three parents; two products with one number; Czech and Japanese
/// names; materials.
std::string planetaryGearbox();

/// A camera slider: all parts directly under the root.
std::string cameraSlider();

std::vector<Sample> allSamples();

}  // namespace samples
