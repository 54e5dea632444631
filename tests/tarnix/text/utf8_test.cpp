#include "tarnix/text/utf8.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tarnix {
namespace {

TEST(Utf8, EncodesEveryLengthOfCharacter) {
    EXPECT_EQ(toUtf8(L"cm\u00B2"), "cm\xC2\xB2");
    EXPECT_EQ(toUtf8(L"\u2591 \u251C\u2500"), "\xE2\x96\x91 \xE2\x94\x9C\xE2\x94\x80");
    EXPECT_EQ(toUtf8(L"\U0001F600"), "\xF0\x9F\x98\x80");
    EXPECT_EQ(toUtf8(L""), "");
}

TEST(Utf8, ReplacesHalfASurrogatePair) {
    const wchar_t high[] = {static_cast<wchar_t>(0xD83D), L'x', 0};
    const wchar_t low[] = {static_cast<wchar_t>(0xDE00), 0};
    EXPECT_EQ(toUtf8(high), "\xEF\xBF\xBDx");
    EXPECT_EQ(toUtf8(low), "\xEF\xBF\xBD");
}

TEST(Utf8, BecomesUtf16) {
    EXPECT_EQ(utf16FromUtf8(""), u"");
    EXPECT_EQ(utf16FromUtf8("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x94\xA9\\"),
              u"a\u00E9\u20AC\U0001F529\\");
}

TEST(Utf8, ThrowsForOtherBytes) {
    EXPECT_THROW(utf16FromUtf8("a\xE9"), std::range_error);
    EXPECT_THROW(utf16FromUtf8("\x80"), std::range_error);
    EXPECT_THROW(utf16FromUtf8("\xE2\x82"), std::range_error);
    EXPECT_THROW(utf16FromUtf8("\xC3("), std::range_error);
    EXPECT_THROW(utf16FromUtf8("\xC0\xAF"), std::range_error);
    EXPECT_THROW(utf16FromUtf8("\xE0\x80\xAF"), std::range_error);
    EXPECT_THROW(utf16FromUtf8("\xED\xA0\x80"), std::range_error);
    EXPECT_THROW(utf16FromUtf8("\xF4\x90\x80\x80"), std::range_error);
}

}  // namespace
}  // namespace tarnix
