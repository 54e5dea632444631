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

TEST_F(TextBox, ReturnsATextWithoutMarkupUnchanged) {
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

}  // namespace
}  // namespace host
