#include "tests/support/addin_test.h"
#include "tests/support/files.h"
#include "tests/support/settings.h"
#include "tests/tarnix/addin/addin_commands.h"
#include "tests/tarnix/refusal/known_exceptions.h"
#include "tests/tarnix/refusal/refused_flow.h"
#include "tests/tarnix/refusal/session_steps.h"
#include "tests/tarnix/refusal/traces.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace refusal {
namespace {

using host::Session;
using test_support::RefusalSweep;
using Texts = std::vector<std::string>;

/// An assembly whose parts are handed up, one that is not, equal parts and differing ones: each
/// branch of the walks and of the tables.
constexpr const char* kDesign =
    "Frame  attribute=QEMA_PropertiesAttributesGroup/Divided/1\n"
    "  Leg  box=1x2x3 description=\"A leg\"\n"
    "  Foot  number=Leg box=1x1x1 description=Another\n"
    "Drive\n"
    "  Bolt  box=1x1x1\n"
    "Bolt\n";

const Texts kColumns = {"QEMA_Quantity;Qty", "QEMA_Mass;Mass", "QEMA_Length;Length",
                        "QEMA_Physical Material;Material", "QEMA_Colour;Colour"};

/// What is left after `stop` in any case: nothing ever destroys that command.
const std::string kKnownTrace = std::string("definition ") + test_support::kOpenLocalFile;

void expectSettingsWhole(const Session& session) {
    EXPECT_EQ(test_support::readFile(settingsFileOf(session)),
              test_support::settingsDocument(kColumns));
}

/// What is left in the host beyond what is known.
Texts traces() {
    Texts found = tracesOfAddin();
    std::erase(found, kKnownTrace);
    return found;
}

/// Settings that were not made before are the default ones, or still missing.
void checkFirstUse(Session& session, const std::string& call) {
    expectOnlyKnownThrown(session);
    const auto file = settingsFileOf(session);
    const std::string settings = test_support::readFile(file);
    EXPECT_TRUE(settings.empty() ||
                settings.find(test_support::kDefaultSettings) != std::string::npos)
        << settings << " after " << call;
}

void checkFlow(Session& session, const std::string& /*call*/) {
    expectOnlyKnownThrown(session);
    expectSettingsWhole(session);
    endSession(session);
    EXPECT_EQ(traces(), Texts());
}

void checkRun(Session& session, const std::string& call) {
    expectOnlyKnownThrown(session);
    expectSettingsWhole(session);
    session.stop();
    // A panel is called after its workspace. One that was made while the workspace returned no id
    // is never looked for.
    const Texts left = call == "Workspace::id" ? Texts{"panel QM_HD_panel"} : Texts();
    EXPECT_EQ(traces(), left);
}

/// What there is in the host with both palettes open: the commands but for the known one, two
/// panels in each of two workspaces, and the palettes.
constexpr std::size_t kEverything = (test_support::kCommandCount - 1) + 2 * 2 + 2;

/// The most that `stop` leaves in the host when one of its calls is refused: what that call itself
/// would have removed, or led to. Without the host's list of palettes it returns false and has done
/// nothing.
std::size_t keptBy(const std::string& call) {
    static const std::map<std::string, std::size_t> kKept = {
        {"UserInterface::palettes", kEverything},
        {"Palettes::itemById", 1},
        {"Palette::deleteMe", 1},
        {"UserInterface::allToolbarPanels", 2},  // the panels of one kind
        {"UserInterface::workspaces", 2},
        {"Workspaces::count", 2},
        {"Workspaces::item", 1},  // the panel of one workspace
        {"Workspace::id", 1},
        {"ToolbarPanelList::itemById", 1},
        {"ToolbarPanel::deleteMe", 1},
        {"CommandDefinition::deleteMe", 1}};
    const auto kept = kKept.find(call);
    return kept == kKept.end() ? 0 : kept->second;
}

void checkStop(Session& session, const std::string& call) {
    expectOnlyKnownThrown(session);
    expectSettingsWhole(session);
    EXPECT_LE(traces().size(), keptBy(call)) << testing::PrintToString(traces());
    // The next one does what the first one could not. A command's own definition
    // goes with its object, which asks for it only once.
    session.stop();
    const std::size_t left = traces().size();
    EXPECT_LE(left, call == "CommandDefinition::deleteMe" ? 1U : 0U)
        << testing::PrintToString(traces());
}

/// With the control that it looks for at its end, one `stop` is all: the next has lost the host.
void checkOnlyStop(Session& session, const std::string& call) {
    expectOnlyKnownThrown(session);
    expectSettingsWhole(session);
    EXPECT_LE(traces().size(), keptBy(call)) << testing::PrintToString(traces());
}

void load(Session& session) {
    test_support::writeFile(settingsFileOf(session), test_support::settingsDocument(kColumns));
    session.openOutline(kDesign);
}

void start(Session& session) {
    load(session);
    ASSERT_TRUE(session.run());
}

void openBom(Session& session) {
    start(session);
    session.press("QM_TX_BOM");
}

void showStructure(Session& session) {
    openBom(session);
    session.activateTab(test_support::kStructureTab);
    ASSERT_TRUE(session.uncaughtExceptions().empty());
}

void pressBom(Session& session) { session.press("QM_TX_BOM"); }

void startWithoutSettings(Session& session) {
    session.openOutline(kDesign);
    ASSERT_TRUE(session.run());
}

RefusalSweep run() {
    return {.prepare = load, .flow = [](Session& session) { session.run(); }, .check = checkRun};
}

RefusalSweep openingOfTheBom() { return {.prepare = start, .flow = pressBom, .check = checkFlow}; }

RefusalSweep openingThatMakesTheSettings() {
    return {.prepare = startWithoutSettings, .flow = pressBom, .check = checkFirstUse};
}

RefusalSweep firstChangeToStructure() {
    return {.prepare = openBom,
            .flow = [](Session& session) { session.activateTab(test_support::kStructureTab); },
            .check = checkFlow};
}

RefusalSweep changeBackToTheModel() {
    return {.prepare = showStructure,
            .flow = [](Session& session) { session.activateTab(test_support::kModelTab); },
            .check = checkFlow};
}

RefusalSweep bomExport() {
    return {.prepare = showStructure,
            .flow = [](Session& session) { session.click(test_support::kExportButton); },
            .check = checkFlow};
}

void stop(Session& session) { session.stop(); }

RefusalSweep stopOfTheAddin() { return {.prepare = start, .flow = stop, .check = checkStop}; }

RefusalSweep stopWithOpenPalettes() {
    RefusalSweep sweep;
    sweep.options.host.repeatControl = true;
    sweep.options.system.windows = {{{"Autodesk Fusion 360", {0, 0, 1280, 800}}}};
    sweep.prepare = [](Session& session) {
        start(session);
        session.press("QM_TX_onLineLibrary");
        session.press("QM_TX_unitsConversion");
        ASSERT_EQ(traces().size(), kEverything);
    };
    sweep.flow = stop;
    sweep.check = checkOnlyStop;
    return sweep;
}

}  // namespace

RefusedFlows addinFlows() {
    return {
        {.name = "InRun", .sweep = run, .leastCalls = 101},
        {.name = "WhileTheBomOpens", .sweep = openingOfTheBom, .leastCalls = 301},
        {.name = "WhileTheBomMakesTheSettings",
         .sweep = openingThatMakesTheSettings,
         .leastCalls = 201},
        {.name = "AtTheFirstChangeToStructure", .sweep = firstChangeToStructure, .leastCalls = 301},
        {.name = "AtTheChangeBackToTheModel", .sweep = changeBackToTheModel, .leastCalls = 51},
        {.name = "InTheExport", .sweep = bomExport, .leastCalls = 101},
        {.name = "InStop", .sweep = stopOfTheAddin, .leastCalls = 51},
        {.name = "InStopWithOpenPalettes", .sweep = stopWithOpenPalettes, .leastCalls = 61}};
}

}  // namespace refusal
