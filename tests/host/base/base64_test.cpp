#include "host/base/base64.h"

#include <gtest/gtest.h>

namespace {

using host::fromBase64;
using host::toBase64;

// The examples of RFC 4648.
TEST(Base64, IsPadded) {
    EXPECT_EQ(toBase64(""), "");
    EXPECT_EQ(toBase64("f"), "Zg==");
    EXPECT_EQ(toBase64("fo"), "Zm8=");
    EXPECT_EQ(toBase64("foobar"), "Zm9vYmFy");
}

TEST(Base64, ComesBack) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }

    EXPECT_EQ(fromBase64(toBase64(bytes)), bytes);
    EXPECT_EQ(fromBase64("Zg=="), "f");
    EXPECT_EQ(fromBase64("Zm8="), "fo");
}

TEST(Base64, RefusesOtherText) {
    EXPECT_EQ(fromBase64("Zg="), std::nullopt);
    EXPECT_EQ(fromBase64("Zm8*"), std::nullopt);
    EXPECT_EQ(fromBase64("=Zm8"), std::nullopt);
}

}  // namespace
