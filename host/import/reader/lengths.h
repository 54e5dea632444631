#pragma once

namespace step {

/// Open CASCADE measures in millimetres, the design in centimetres.
inline constexpr double kMillimetresPerCentimetre = 10;

}  // namespace step
