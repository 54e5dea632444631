#pragma once

#include "tests/support/addin_test.h"

#include "host/application/application_object.h"
#include "host/ui/dialogs/palettes_object.h"

#include <optional>
#include <string>
#include <vector>

/// A test of a command that shows a palette, at the test's screen.
class PaletteTest : public test_support::AddinTest {
protected:
    /// The windows on the screen, the foremost first.
    std::vector<host::WindowShown> windows;

    [[nodiscard]] host::SessionOptions options() const override {
        host::SessionOptions with = AddinTest::options();
        with.system.windows = windows;
        return with;
    }

    static adsk::core::Ptr<adsk::core::Palettes> palettes() {
        return adsk::core::Application::get()->userInterface()->palettes();
    }

    static adsk::core::Ptr<adsk::core::Palette> palette(const std::string& id) {
        return palettes()->itemById(id);
    }

    /// What was set on a palette, with what its API does not return.
    static host::ui::PaletteState stateOf(const std::string& id) {
        return host::ApplicationObject::current()->ui().state().palettes->find(id)->state();
    }

    /// Expects that the user can close and resize a palette, and that it shows its page in the old
    /// browser.
    static void expectClosableResizableAndOld(const std::string& id) {
        ASSERT_TRUE(palette(id));
        const host::ui::PaletteState state = stateOf(id);
        EXPECT_TRUE(state.closeButton);
        EXPECT_TRUE(state.resizable);
        EXPECT_FALSE(state.newWebBrowser);
    }

    /// Expects that a palette shows a page by http, of that path on whatever site.
    static void expectPage(const std::string& id, const std::string& path) {
        const std::string address = palette(id)->htmlFileURL();
        EXPECT_TRUE(address.starts_with("http://")) << address;
        EXPECT_TRUE(address.ends_with(path)) << address;
    }

    /// Left, top, width and height.
    static std::vector<int> placeOf(const adsk::core::Ptr<adsk::core::Palette>& palette) {
        return {palette->left(), palette->top(), palette->width(), palette->height()};
    }
};
