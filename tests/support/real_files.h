#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

namespace test_support {

/// The folder of STEP files written by other systems: the one that the environment's
/// TARNIX_TEST_DATA names, else one beside the project. Origins and licences of the files are in
/// tests/real_files.md.
inline std::filesystem::path realFiles() {
    const char* const chosen = std::getenv("TARNIX_TEST_DATA");
    return chosen != nullptr ? chosen : TEST_DATA_FOLDER;
}

/// Skips the running test where there are none. To be called in its `SetUp`.
inline void needRealFiles() {
    if (!std::filesystem::is_directory(realFiles())) {
        GTEST_SKIP() << "no folder of real STEP files; TARNIX_TEST_DATA names one";
    }
}

}  // namespace test_support
