#include "host/ui/inputs/markup.h"

#include <gtest/gtest.h>

namespace host {
namespace {

TEST(Markup, EntitiesBecomeTheirCharacters) {
    EXPECT_EQ(ui::plainText("a &amp; b &lt;c&gt; &quot;d&quot; &#233; &#x20AC;"),
              "a & b <c> \"d\" \xC3\xA9 \xE2\x82\xAC");
}

TEST(Markup, AnAmpersandThatBeginsNoKnownEntityStays) {
    EXPECT_EQ(ui::plainText("a?x=1&y=2&copy;&;&#0;& b&"), "a?x=1&y=2&copy;&;&#0;& b&");
}

TEST(Markup, ALessThanThatBeginsNoTagStays) {
    EXPECT_EQ(ui::plainText("1 < 2, <3>, a<b"), "1 < 2, <3>, a<b");
}

TEST(Markup, ATagEndsAfterItsQuotedValues) {
    EXPECT_EQ(ui::plainText("<a title='x > y'>link</a><!-- <b> -->!"), "link!");
}

TEST(Markup, LiteralTextIsNotEscapedNeedlessly) {
    EXPECT_EQ(ui::literalMarkup("a & b < c"), "a & b < c");
    EXPECT_EQ(ui::literalMarkup("<b>"), "&lt;b&gt;");
}

}  // namespace
}  // namespace host
