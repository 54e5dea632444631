#pragma once

#include "tests/support/addin_test.h"

#include <cstdint>
#include <string>

/// What an export that is killed in its midst writes: so many rows that there is time for it.
namespace test_support::killed_export {

constexpr int kRows = 4000;

/// The file's size from which on the process is killed.
constexpr std::uintmax_t kSomeLines = 200;

/// An export may be over before this process has its turn.
constexpr int kAttempts = 10;

inline std::string outline() {
    std::string text;
    for (int i = 1; i <= kRows; ++i) {
        text += "\n    Part " + std::to_string(i) + "  number=P-" + std::to_string(i);
    }
    return text;
}

/// The export without its total mass.
inline std::string lines() {
    std::string text = "Pos.;Part Number;BOM Structure;\r\n";
    for (int i = 1; i <= kRows; ++i) {
        text += std::to_string(i) + ";P-" + std::to_string(i) + ";Produce;\r\n";
    }
    return text;
}

/// All lines but the last are whole, and what is there of that is its beginning.
inline void expectWholeLines(const std::string& written) {
    const std::string all = lines();
    EXPECT_GT(written.size(), kSomeLines);
    EXPECT_LT(written.size(), all.size());
    EXPECT_EQ(written, all.substr(0, written.size()));
    EXPECT_TRUE(written.ends_with("\r\n")) << written.substr(written.rfind('\n') + 1);
}

}  // namespace test_support::killed_export
