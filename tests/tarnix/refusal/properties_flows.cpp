#include "tests/support/files.h"
#include "tests/tarnix/properties/properties_fixture.h"
#include "tests/tarnix/refusal/known_exceptions.h"
#include "tests/tarnix/refusal/refused_flow.h"
#include "tests/tarnix/refusal/session_steps.h"

#include "host/session/input_actions.h"
#include "host/session/user_actions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>

namespace refusal {
namespace {

using host::Session;
using tarnix::category;
using tarnix::kAddRow;
using tarnix::kDeleteRow;
using tarnix::kSave;
using tarnix::kSettingsTab;
using tarnix::kStructure;
using tarnix::kTable;
using tarnix::settingsWith;
using test_support::RefusalSweep;

const std::vector<std::string> kOffered = {"QEMA_Colour;Colour", "QEMA_Size;Size"};

/// The root element of the stored settings, to its last byte.
std::string rootOf(const Session& session) {
    const std::string bytes = test_support::readFile(settingsFileOf(session));
    const std::size_t from = bytes.find("<configuration");
    const std::size_t to = bytes.rfind('>');
    return from == std::string::npos ? bytes : bytes.substr(from, to + 1 - from);
}

std::string rootWith(const std::vector<std::string>& properties) {
    const std::string document = settingsWith(category("iProperty", properties));
    return document.substr(document.find("<configuration"),
                           document.rfind('>') + 1 - document.find("<configuration"));
}

void checkFlow(Session& session, const std::string& /*call*/) {
    expectOnlyPlainThrown(session);
    EXPECT_EQ(rootOf(session), rootWith(kOffered));
    endSession(session);
}

/// After a saved list: as it was where something was thrown, else what the rows hold. A table that
/// could not be reached has no rows, a row that could not be read no name.
void checkSaved(Session& session, const std::string& call) {
    const std::string root = rootOf(session);
    if (!session.uncaughtExceptions().empty()) {
        EXPECT_EQ(root, rootWith(kOffered)) << call;
    } else {
        const std::vector<std::string> whole = {
            rootWith({"QEMA_Colour;Colour", "QEMA_Size;Size", "QEMA_New;New"}),
            rootWith({"QEMA_Size;Size", "QEMA_New;New"}),
            rootWith({"QEMA_Colour;Colour", "QEMA_New;New"}), rootWith(kOffered),
            "<configuration nameOfApplication=\"Tarnix\"><category name=\"iProperty\"/>"
            "</configuration>"};
        EXPECT_NE(std::find(whole.begin(), whole.end(), root), whole.end()) << call << ": " << root;
    }
    expectOnlyPlainThrown(session);
}

void storeSettings(const Session& session) {
    test_support::writeFile(settingsFileOf(session), settingsWith(category("iProperty", kOffered)));
}

/// A design in the user's data with a referenced document that the host does not know yet.
void load(Session& session) {
    storeSettings(session);
    const std::filesystem::path project = session.folder() / "data" / "Alfa";
    std::filesystem::create_directories(project / "Bought");
    session.openOutline("Piston");
    session.save(project / "Bought" / "Engine.design.json");
    session.openOutline(
        "Motor  document=Engine\n"
        "Bolt  attribute=QEMA_PropertiesAttributesGroup/Buy/1\n");
    session.save(project / "Gearbox.design.json");
    session.useData({session.folder() / "data", "Alfa", host::ReferencedFiles::KnownWhenListed});
    session.open(project / "Gearbox.design.json");
    ASSERT_TRUE(session.run());
}

void openDialog(Session& session) {
    load(session);
    session.press("QEMA_EditPropertiesCmd");
    ASSERT_TRUE(session.uncaughtExceptions().empty());
}

void openAndPick(Session& session) {
    openDialog(session);
    session.pick("Bolt:1");
    ASSERT_TRUE(session.uncaughtExceptions().empty());
}

void showList(Session& session) {
    openDialog(session);
    session.activateTab(kSettingsTab);
}

void addNamedRow(Session& session) {
    showList(session);
    session.click(kAddRow);
    host::typeText(session.table(kTable)->getInputAtPosition(2, 0), "New");
}

using Steps = void (*)(Session&);

/// A sweep after which the settings are as they were.
RefusalSweep sweep(Steps prepare, Steps flow) {
    return {.prepare = prepare, .flow = flow, .check = checkFlow};
}

RefusalSweep opening() {
    return sweep(load, [](Session& session) { session.press("QEMA_EditPropertiesCmd"); });
}

RefusalSweep pickOfAnotherDocument() {
    return sweep(openDialog, [](Session& session) { session.pick("Motor:1"); });
}

RefusalSweep clearingOfThePick() {
    return sweep(openAndPick, [](Session& session) { session.pick("Bolt:1"); });
}

RefusalSweep structureButton() {
    return sweep(openAndPick, [](Session& session) { session.choose(kStructure, "Produce"); });
}

RefusalSweep addedRow() {
    return sweep(showList, [](Session& session) { session.click(kAddRow); });
}

RefusalSweep deletedRow() {
    return sweep(
        [](Session& session) {
            showList(session);
            session.selectRow(kTable, 0);
        },
        [](Session& session) { session.click(kDeleteRow); });
}

RefusalSweep deletedRowWithoutSelection() {
    return sweep(showList, [](Session& session) { session.click(kDeleteRow); });
}

RefusalSweep typedName() {
    return sweep(showList, [](Session& session) {
        host::typeText(session.table(kTable)->getInputAtPosition(0, 0), "a.");
    });
}

RefusalSweep savedList() {
    return {.prepare = addNamedRow,
            .flow =
                [](Session& session) {
                    storeSettings(session);
                    session.click(kSave);
                },
            .check = checkSaved};
}

RefusalSweep acceptance() {
    return sweep(openAndPick, [](Session& session) { session.ok(); });
}

}  // namespace

RefusedFlows propertiesFlows() {
    return {{.name = "WhileTheDialogOpens", .sweep = opening, .leastCalls = 61},
            {.name = "InPickingAComponentOfAnotherDocument",
             .sweep = pickOfAnotherDocument,
             .leastCalls = 101},
            {.name = "InClearingThePick", .sweep = clearingOfThePick, .leastCalls = 41},
            {.name = "InPressingAStructureButton", .sweep = structureButton, .leastCalls = 21},
            {.name = "InAddingARow", .sweep = addedRow, .leastCalls = 9},
            {.name = "InDeletingARow", .sweep = deletedRow, .leastCalls = 7},
            {.name = "InDeletingARowWithoutSelection",
             .sweep = deletedRowWithoutSelection,
             .leastCalls = 7},
            {.name = "InTypingAName", .sweep = typedName, .leastCalls = 13},
            {.name = "InSavingTheList", .sweep = savedList, .leastCalls = 11},
            {.name = "InOk", .sweep = acceptance, .leastCalls = 61}};
}

}  // namespace refusal
