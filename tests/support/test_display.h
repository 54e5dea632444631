#pragma once

#include <gtest/gtest.h>

#include <cstdlib>

namespace test_support {

inline void skipWithoutTestDisplay() {
    if (std::getenv("TEST_DISPLAY") == nullptr) {
        GTEST_SKIP() << "TEST_DISPLAY names no display";
    }
}

/// The name of the display that tests may draw on, 800 by 600 pixels large. Null where there is
/// none; the running test is skipped then.
inline const char* testDisplay() {
    skipWithoutTestDisplay();
    return std::getenv("TEST_DISPLAY");
}

}  // namespace test_support
