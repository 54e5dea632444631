#include "tests/host/ui/host_test.h"

#include "host/ui/dialogs/palettes_object.h"

namespace host {
namespace {

using namespace adsk::core;

class PaletteTest : public HostTest {
protected:
    Ptr<Palette> add(const std::string& id) {
        return ui()->palettes()->add(id, "Name", "https://page.example/", true, true, true, 260,
                                     400, false);
    }
};

TEST_F(PaletteTest, KeepsWhatItWasMadeWith) {
    const Ptr<Palette> made = add("palette");

    EXPECT_EQ(ui()->palettes()->itemById("palette"), made);
    EXPECT_EQ(ui()->palettes()->count(), 1U);
    EXPECT_EQ(made->id(), "palette");
    EXPECT_EQ(made->name(), "Name");
    EXPECT_EQ(made->htmlFileURL(), "https://page.example/");
    EXPECT_TRUE(made->isVisible());
    EXPECT_EQ(made->width(), 260);
    EXPECT_EQ(made->height(), 400);
    EXPECT_EQ(made->dockingState(), PaletteDockStateFloating);
}

TEST_F(PaletteTest, KeepsItsBrowserAndHowItsWindowBehaves) {
    ui()->palettes()->add("old", "Old", "http://page.example/", true, true, false, 1, 1, false);
    ui()->palettes()->add("new", "New", "http://page.example/", true, false, true, 1, 1, true);

    const auto state = [](const char* id) {
        return host::ApplicationObject::current()->ui().state().palettes->find(id)->state();
    };
    EXPECT_FALSE(state("old").newWebBrowser);
    EXPECT_TRUE(state("old").closeButton);
    EXPECT_FALSE(state("old").resizable);
    EXPECT_TRUE(state("new").newWebBrowser);
    EXPECT_FALSE(state("new").closeButton);
    EXPECT_TRUE(state("new").resizable);
}

TEST_F(PaletteTest, AnIdInUseReturnsNull) {
    add("palette");

    EXPECT_FALSE(add("palette"));
    EXPECT_EQ(misuses(), (std::vector<Misuse>{{.operation = "Palettes::add",
                                               .text = "the id \"palette\" is in use"}}));
}

TEST_F(PaletteTest, FloatsOnceItIsMoved) {
    const Ptr<Palette> made = add("palette");
    made->dockingState(PaletteDockStateLeft);

    EXPECT_TRUE(made->setPosition(1000, 500));

    EXPECT_EQ(made->dockingState(), PaletteDockStateFloating);
    EXPECT_EQ(made->left(), 1000);
    EXPECT_EQ(made->top(), 500);
}

TEST_F(PaletteTest, DockedToASideItKeepsItsHeightAndReturnsTrue) {
    const Ptr<Palette> made = add("palette");
    made->dockingState(PaletteDockStateRight);

    EXPECT_TRUE(made->setSize(300, 900));

    EXPECT_EQ(made->width(), 300);
    EXPECT_EQ(made->height(), 400);
}

TEST_F(PaletteTest, SurvivesAChangeOfWorkspaceAndTheEndOfACommand) {
    const Ptr<Palette> made = add("palette");
    define("Button", [](const Ptr<Command>&) {});

    pressCommand("Button");
    activateWorkspace("CAMEnvironment");

    EXPECT_TRUE(made->isValid());
    EXPECT_EQ(ui()->palettes()->itemById("palette"), made);
}

TEST_F(PaletteTest, TheCloseButtonOnlyHidesIt) {
    const Ptr<Palette> made = add("palette");

    closePalette("palette");

    EXPECT_TRUE(made->isValid());
    EXPECT_FALSE(made->isVisible());
    EXPECT_EQ(misuseOf([] { closePalette("palette"); }),
              "cannot close the palette palette: it is not visible");
}

TEST_F(PaletteTest, ADeletedOneIsNotFound) {
    const Ptr<Palette> made = add("palette");

    EXPECT_TRUE(made->deleteMe());

    EXPECT_FALSE(made->isValid());
    EXPECT_FALSE(made->deleteMe());
    EXPECT_FALSE(ui()->palettes()->itemById("palette"));
    EXPECT_TRUE(add("palette"));
    EXPECT_EQ(misused(), "Palette::deleteMe");
}

using OnHtml = Calling<HTMLEventHandler, HTMLEventArgs>;

// Palette_incomingFromHTML, HTMLEventArgs_returnData: the page gets what the handlers answer.
TEST_F(PaletteTest, WhatThePageSendsIsAnsweredByTheModule) {
    const Ptr<Palette> made = add("palette");
    on<OnHtml>(made->incomingFromHTML(), [this](const Ptr<HTMLEventArgs>& args) {
        note(args->action() + ":" + args->data() + args->returnData());
        args->returnData("first");
    });
    on<OnHtml>(made->incomingFromHTML(),
               [](const Ptr<HTMLEventArgs>& args) { args->returnData(args->returnData() + "+"); });

    EXPECT_EQ(sendFromPage("palette", "pressed", "{}"), "first+");

    EXPECT_EQ(noted(), "pressed:{}");
    EXPECT_EQ(made->incomingFromHTML()->sender(), made);
    EXPECT_EQ(misuseOf([] { sendFromPage("none", "pressed", ""); }),
              "cannot use the page of the palette none: no palette has this id");
}

TEST_F(PaletteTest, WhatThePageSendsCanStartACommand) {
    define("Button", [this](const Ptr<Command>&) { note("created"); });
    on<OnHtml>(add("palette")->incomingFromHTML(), [this](const auto&) {
        ui()->commandDefinitions()->itemById("Button")->execute();
        note("sent");
    });

    sendFromPage("palette", "start", "");

    EXPECT_EQ(noted(), "sent created");
}

// Palette_sendInfoToHTML: the answer of the page.
TEST_F(PaletteTest, WhatTheModuleSendsIsAnsweredByThePage) {
    const Ptr<Palette> made = add("palette");
    EXPECT_EQ(made->sendInfoToHTML("update", "1"), "");
    answerAsPage("palette",
                 [](const auto& message) { return message.action + "=" + message.data; });

    EXPECT_EQ(made->sendInfoToHTML("update", "2"), "update=2");

    EXPECT_EQ(sentToPage("palette"),
              (std::vector<ui::PageMessage>{{.action = "update", .data = "1"},
                                            {.action = "update", .data = "2"}}));
    made->deleteMe();
    EXPECT_EQ(made->sendInfoToHTML("update", "3"), "");
    EXPECT_EQ(misused(), "Palette::sendInfoToHTML");
}

// A page may answer by sending something itself.
TEST_F(PaletteTest, ThePageMaySendWhileItIsAsked) {
    const Ptr<Palette> made = add("palette");
    on<OnHtml>(made->incomingFromHTML(),
               [this](const Ptr<HTMLEventArgs>& args) { note(args->action()); });
    answerAsPage("palette", [](const auto&) {
        sendFromPage("palette", "back", "");
        return "answered";
    });

    EXPECT_EQ(made->sendInfoToHTML("update", ""), "answered");
    EXPECT_EQ(noted(), "back");
}

}  // namespace
}  // namespace host
