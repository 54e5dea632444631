#include "samples/samples.h"

namespace samples {

std::vector<Sample> allSamples() {
    return {{"planetary-gearbox.step", planetaryGearbox()}, {"camera-slider.step", cameraSlider()}};
}

}  // namespace samples
