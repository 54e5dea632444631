#include "tarnix/platform/xml_text.h"

#include <gtest/gtest.h>

namespace tarnix::platform {
namespace {

TEST(XmlText, KeepsWhatADocumentCanHold) {
    const std::string text = "a\t\r\n\"<&>' \xC4\x8D \xE6\xBC\xA2 \xF0\x9F\x98\x80 \x7F";
    EXPECT_EQ(xmlText(text), text);
    EXPECT_EQ(xmlText(""), "");
}

TEST(XmlText, LeavesOutForbiddenControlCharacters) {
    EXPECT_EQ(xmlText(std::string("a\0b\x01"
                                  "c\x0B\x0C\x1F"
                                  "d",
                                  9)),
              "abcd");
}

TEST(XmlText, LeavesOutTheTwoLastCharactersOfTheFirstPlane) {
    EXPECT_EQ(xmlText("a\xEF\xBF\xBE"
                      "b\xEF\xBF\xBF"
                      "c\xEF\xBF\xBD"),
              "abc\xEF\xBF\xBD");
}

TEST(XmlText, BytesThatAreNotUtf8BecomeReplacementCharacters) {
    const std::string replacement = "\xEF\xBF\xBD";
    EXPECT_EQ(xmlText("a\xFF"
                      "b"),
              "a" + replacement + "b");
    EXPECT_EQ(xmlText("caf\xE9"), "caf" + replacement);
    EXPECT_EQ(xmlText("\xC4"
                      "x"),
              replacement + "x");
    EXPECT_EQ(xmlText("\x80"), replacement);
}

TEST(XmlText, OverlongFormsAndSurrogatesAreNotUtf8) {
    const std::string replacement = "\xEF\xBF\xBD";
    EXPECT_EQ(xmlText("\xC0\x80"), replacement + replacement);
    EXPECT_EQ(xmlText("\xE0\x80\x80"), replacement + replacement + replacement);
    EXPECT_EQ(xmlText("\xED\xA0\x80"), replacement + replacement + replacement);
    EXPECT_EQ(xmlText("\xF4\x90\x80\x80"), replacement + replacement + replacement + replacement);
}

}  // namespace
}  // namespace tarnix::platform
