#pragma once

#include <cstdint>

namespace host::ui {

/// The knobs of a slider.
enum class SliderKnob : std::uint8_t { First, Second };

}  // namespace host::ui
