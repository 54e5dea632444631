#include "host/session/screen_view.h"

#include "host/session/main_thread.h"
#include "tests/support/addin_test.h"

#include <thread>

namespace host {
namespace {

using namespace adsk::core;

/// A session without anything of an add-in's on the screen.
class ScreenViews : public test_support::AddinTest {
protected:
    [[nodiscard]] bool runsAtStart() const override { return false; }
    static Ptr<UserInterface> ui() { return Application::get()->userInterface(); }
};

TEST_F(ScreenViews, PalettesThatAreVisibleAreRead) {
    const Ptr<Palette> palette =
        ui()->palettes()->add("mine", "My palette", "http://pages.example/a.htm",
                              /*isVisible=*/true, /*showCloseButton=*/true, /*isResizable=*/false,
                              /*width=*/350, /*height=*/300, /*useNewWebBrowser=*/false);
    palette->dockingState(PaletteDockStateRight);
    ui()->palettes()->add("hidden", "", "", /*isVisible=*/false, true, true, 1, 1, false);

    const std::vector<PaletteView> palettes = readPalettes();

    ASSERT_EQ(palettes.size(), 1U);
    EXPECT_EQ(palettes[0].id + " " + palettes[0].name, "mine My palette");
    EXPECT_EQ(palettes[0].address, "http://pages.example/a.htm");
    EXPECT_EQ(palettes[0].dock, "right");
    EXPECT_EQ(palettes[0].width, 350);
    EXPECT_EQ(palettes[0].height, 300);
    EXPECT_TRUE(palettes[0].closeButton);
    EXPECT_FALSE(palettes[0].resizable);
    palette->deleteMe();
    ui()->palettes()->itemById("hidden")->deleteMe();
}

TEST_F(ScreenViews, SelectionsAreReadAsPathsInTheirOrder) {
    open(R"(
        Gearbox
          Shaft
        Bolt)");

    session->pick("Gearbox:1+Shaft:1");
    EXPECT_EQ(selectedPaths(), (std::vector<std::string>{"Gearbox:1+Shaft:1"}));
    session->pick("");
    EXPECT_EQ(selectedPaths(), (std::vector<std::string>{""}));
}

TEST_F(ScreenViews, EditsOfTheDesignAreCounted) {
    open("Bolt");
    const std::uint64_t before = editsOfDesign();
    const Ptr<adsk::fusion::Design> design = Application::get()->activeProduct();

    design->rootComponent()->occurrences()->item(0)->component()->partNumber("P-1");

    EXPECT_GT(editsOfDesign(), before);
}

TEST_F(ScreenViews, WhatAnotherThreadPostsIsDoneByTheMainThread) {
    std::thread::id done;
    std::thread([&done] {
        postToMainThread([&done] { done = std::this_thread::get_id(); });
    }).join();
    EXPECT_EQ(done, std::thread::id());

    runPostedWork();

    EXPECT_EQ(done, std::this_thread::get_id());
}

}  // namespace
}  // namespace host
