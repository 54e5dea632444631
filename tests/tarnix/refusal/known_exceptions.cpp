#include "tests/tarnix/refusal/known_exceptions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>

bool isKnown(const host::UncaughtException& thrown) {
    static const std::array<std::string, 7> kTexts = {"",
                                                      "invalid stoi argument",
                                                      "stoi argument out of range",
                                                      "invalid stod argument",
                                                      "stod argument out of range",
                                                      "invalid vector subscript",
                                                      "invalid string position"};
    const bool known = std::find(kTexts.begin(), kTexts.end(), thrown.text) != kTexts.end();
    return known && thrown.type.rfind("std::", 0) == 0;
}

void expectOnlyKnownThrown(const host::Session& session) {
    for (const host::UncaughtException& thrown : session.uncaughtExceptions()) {
        EXPECT_TRUE(isKnown(thrown))
            << thrown.type << " (" << thrown.text << ") in " << thrown.event;
    }
}

void expectOnlyPlainThrown(const host::Session& session) {
    for (const host::UncaughtException& thrown : session.uncaughtExceptions()) {
        EXPECT_EQ(thrown.type, "std::exception") << thrown.text << " in " << thrown.event;
        EXPECT_EQ(thrown.text, "");
    }
}
