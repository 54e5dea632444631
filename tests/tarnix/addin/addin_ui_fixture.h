#pragma once

#include "tests/support/addin_test.h"
#include "tests/tarnix/addin/addin_commands.h"

#include <Core/CoreAll.h>

#include <span>
#include <string>

namespace test_support {

inline constexpr const char* kSolid = "FusionSolidEnvironment";
inline constexpr const char* kManufacture = "CAMEnvironment";
inline constexpr const char* kRender = "FusionRenderEnvironment";

/// What the add-in has put into the host's user interface.
class AddinUiTest : public AddinTest {
protected:
    [[nodiscard]] static adsk::core::Ptr<adsk::core::UserInterface> ui();
    [[nodiscard]] static adsk::core::Ptr<adsk::core::CommandDefinition> definition(
        const std::string& id);

    /// A panel of any workspace, null where there is none.
    [[nodiscard]] static adsk::core::Ptr<adsk::core::ToolbarPanel> panel(const std::string& id);

    /// The controls of a panel, a line for each, the promoted ones marked; "no panel" for none.
    [[nodiscard]] static std::string controls(const std::string& panelId);

    /// The same for those of `commands` that belong in a panel of this kind.
    [[nodiscard]] static std::string controlsOf(std::span<const RegisteredCommand> commands,
                                                Place place);

    /// Caption, tooltip and icon folder of a definition, a line for each; "none" for none.
    [[nodiscard]] static std::string texts(const std::string& id);

    /// What there is of the add-in: its panels and definitions by id, a line for each.
    [[nodiscard]] static std::string present();
};

/// A test in which the module is loaded and not yet run.
class UnstartedAddinTest : public AddinUiTest {
protected:
    [[nodiscard]] bool runsAtStart() const override { return false; }
};

}  // namespace test_support
