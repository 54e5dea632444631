#pragma once

#include "tests/support/temporary_folder.h"
#include "tests/tarnix/platform/test_system.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace tarnix::platform {

/// Loads copies of a small module that returns its path.
class ModulePath : public testing::Test {
protected:
    /// What the module returns when it lies at `path`.
    static std::string pathOfProbeAt(const std::filesystem::path& path) {
        std::filesystem::copy_file(MODULE_PATH_PROBE, path);
        const auto module = test::loadModule(path);
        if (module == nullptr) {
            return "not loaded";
        }
        using Probe = const char* (*)();
        return reinterpret_cast<Probe>(test::functionOf(module, "probeModulePath"))();
    }

    test_support::TemporaryFolder folder;
};

}  // namespace tarnix::platform
