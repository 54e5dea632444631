#pragma once

#include "tarnix/platform/shell.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>

namespace tarnix::platform {

/// Tests of what the system's opener is asked. A recorder replaces it, which adds a line for
/// each call to the file that the environment names.
class Shell : public testing::Test {
protected:
    void SetUp() override {
        if (list.empty()) {
            GTEST_SKIP() << "OPENED_LIST does not name the recorder's file";
        }
        std::ofstream(list, std::ios::trunc).close();
    }

    /// The targets opened so far, a line each. Waits for the first, which another process writes.
    static std::string opened() {
        std::string content = openedSoFar();
        for (int i = 0; i < 600 && !content.ends_with('\n'); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
            content = openedSoFar();
        }
        return content;
    }

    static std::string openedSoFar() {
        std::ifstream file(list);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    static std::string environment(const char* name) {
        const char* const value = std::getenv(name);
        return value != nullptr ? value : "";
    }

    inline static const std::string list = environment("OPENED_LIST");
};

}  // namespace tarnix::platform
