#pragma once

#include "tarnix/addin/helpdesk_commands.h"
#include "tarnix/addin/main_commands.h"
#include "tarnix/addin/state.h"

#include "tests/tarnix/addin/addin_ui_fixture.h"

namespace test_support {

/// Registration by direct calls, for what `run` does only once. The module is loaded and unused.
class RegistrationTest : public UnstartedAddinTest {
protected:
    void SetUp() override {
        UnstartedAddinTest::SetUp();
        tarnix::app = adsk::core::Application::get();
        tarnix::ui = ui();
    }

    void TearDown() override {
        tarnix::destroyCommands();
        tarnix::helpdeskCommandDefinitions.clear();
        tarnix::ui = nullptr;
        tarnix::app = nullptr;
        UnstartedAddinTest::TearDown();
    }
};

}  // namespace test_support
