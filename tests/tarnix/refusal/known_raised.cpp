#include "tests/tarnix/refusal/known_raised.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>

namespace {

bool isKnown(const host::Raised& raised) {
    static const std::array<std::string, 7> kTexts = {"",
                                                      "invalid stoi argument",
                                                      "stoi argument out of range",
                                                      "invalid stod argument",
                                                      "stod argument out of range",
                                                      "invalid vector subscript",
                                                      "invalid string position"};
    const bool known = std::find(kTexts.begin(), kTexts.end(), raised.text) != kTexts.end();
    return known && raised.type.rfind("std::", 0) == 0;
}

}  // namespace

void expectOnlyKnownRaised(const host::Session& session) {
    for (const host::Raised& raised : session.raised()) {
        EXPECT_TRUE(isKnown(raised))
            << raised.type << " (" << raised.text << ") in " << raised.event;
    }
}
