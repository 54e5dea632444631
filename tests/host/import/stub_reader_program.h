#pragma once

#include "host/session/environment.h"

#include <filesystem>

namespace test_support {

/// The program of stub_reader.cpp, which is beside this one.
inline std::filesystem::path stubReader() {
    return host::environment::programFolder() / STUB_READER;
}

}  // namespace test_support
