#include "tests/host/ui/host_test.h"

#include "host/ui/inputs/markup.h"

namespace host {
namespace {

using namespace adsk::core;

class TextBox : public HostTest {
protected:
    Ptr<TextBoxCommandInput> add(const std::string& formatted) {
        if (!openDialog()) {
            openWith([](const Ptr<CommandInputs>& inputs) {
                inputs->addBoolValueInput("any", "", false);
            });
        }
        return openDialog()->commandInputs()->addTextBoxCommandInput("box", "", formatted, 2, true);
    }
};

TEST_F(TextBox, ShowsFormattedTextWithoutItsTags) {
    const Ptr<TextBoxCommandInput> box =
        add("<div style=\"background-color:#fefa50\">Press <b>\"Save\"</b>.</div>");

    EXPECT_EQ(box->text(), "Press \"Save\".");
    EXPECT_EQ(box->formattedText(),
              "<div style=\"background-color:#fefa50\">Press <b>\"Save\"</b>.</div>");
    EXPECT_EQ(box->numRows(), 2);
    EXPECT_TRUE(box->isReadOnly());
}

TEST_F(TextBox, GivesBackATextWithoutMarkupUnchanged) {
    const Ptr<TextBoxCommandInput> box = add("https://support.example/");

    EXPECT_EQ(box->text(), "https://support.example/");
    EXPECT_EQ(box->formattedText(), "https://support.example/");
}

TEST_F(TextBox, ShowsASetTextLiterally) {
    const Ptr<TextBoxCommandInput> box = add("");

    box->text("<b>a &amp; b</b>");

    EXPECT_EQ(box->text(), "<b>a &amp; b</b>");
    EXPECT_EQ(ui::plainText(box->formattedText()), "<b>a &amp; b</b>");
}

TEST_F(TextBox, TakesFormattedTextAgain) {
    const Ptr<TextBoxCommandInput> box = add("");

    box->formattedText("a<br/>b");

    EXPECT_EQ(box->text(), "a\nb");
}

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

TEST(Markup, ATagEndsBehindItsQuotedValues) {
    EXPECT_EQ(ui::plainText("<a title='x > y'>link</a><!-- <b> -->!"), "link!");
}

TEST(Markup, LiteralTextStaysItselfWhereItReadsBackEqual) {
    EXPECT_EQ(ui::literalMarkup("a & b < c"), "a & b < c");
    EXPECT_EQ(ui::literalMarkup("<b>"), "&lt;b&gt;");
}

}  // namespace
}  // namespace host
