#pragma once

namespace test_support {

/// Calls the cases of a parameterised test by the `name` of their parameters.
inline constexpr auto caseName = [](const auto& test) { return test.param.name; };

}  // namespace test_support
