// Every host call of the dialog's flows, refused once each: the add-in neither crashes nor loses
// memory, throws nothing but the plain exception of a null handle, and leaves its settings whole.

#include "tests/support/files.h"
#include "tests/support/refusal.h"
#include "tests/tarnix/properties/properties_fixture.h"

#include "host/session/user_actions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>

namespace tarnix {
namespace {

using host::Session;
using test_support::refuseEachCall;

const std::vector<std::string> kOffered = {"QEMA_Colour;Colour", "QEMA_Size;Size"};

std::filesystem::path settingsOf(const Session& session) {
    return session.addin().folder / "Tarnix_configuration.xml";
}

/// The root element of the stored settings, to its last byte.
std::string rootOf(const Session& session) {
    const std::string bytes = test_support::readFile(settingsOf(session));
    const std::size_t from = bytes.find("<configuration");
    const std::size_t to = bytes.rfind('>');
    return from == std::string::npos ? bytes : bytes.substr(from, to + 1 - from);
}

std::string rootWith(const std::vector<std::string>& properties) {
    const std::string document = settingsWith(category("iProperty", properties));
    return document.substr(document.find("<configuration"),
                           document.rfind('>') + 1 - document.find("<configuration"));
}

void expectPlainExceptionsAlone(const Session& session) {
    for (const host::UncaughtException& thrown : session.uncaughtExceptions()) {
        EXPECT_EQ(thrown.type, "std::exception") << thrown.text << " in " << thrown.event;
        EXPECT_EQ(thrown.text, "");
    }
}

void checkFlow(Session& session, const std::string& /*call*/) {
    expectPlainExceptionsAlone(session);
    EXPECT_EQ(rootOf(session), rootWith(kOffered));
    if (session.dialogOpen()) {
        session.cancel();
    }
    session.stop();
}

/// After a saved list: as it was where something was thrown, else what the rows told. A table that
/// could not be reached has none, a row that could not be read no name.
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
    expectPlainExceptionsAlone(session);
}

void storeSettings(const Session& session) {
    test_support::writeFile(settingsOf(session), settingsWith(category("iProperty", kOffered)));
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

TEST(RefusedHostCalls, WhileTheDialogOpens) {
    const std::uint64_t calls = refuseEachCall(
        {load, [](Session& session) { session.press("QEMA_EditPropertiesCmd"); }, checkFlow});

    EXPECT_GT(calls, 60U);
}

TEST(RefusedHostCalls, InPickingAComponentOfAnotherDocument) {
    const std::uint64_t calls =
        refuseEachCall({openDialog, [](Session& session) { session.pick("Motor:1"); }, checkFlow});

    EXPECT_GT(calls, 100U);
}

TEST(RefusedHostCalls, InClearingThePick) {
    const std::uint64_t calls =
        refuseEachCall({openAndPick, [](Session& session) { session.pick("Bolt:1"); }, checkFlow});

    EXPECT_GT(calls, 40U);
}

TEST(RefusedHostCalls, InPressingAStructureButton) {
    const std::uint64_t calls = refuseEachCall(
        {openAndPick, [](Session& session) { session.choose(kStructure, "Produce"); }, checkFlow});

    EXPECT_GT(calls, 20U);
}

TEST(RefusedHostCalls, InAddingARow) {
    const std::uint64_t calls =
        refuseEachCall({showList, [](Session& session) { session.click(kAddRow); }, checkFlow});

    EXPECT_GT(calls, 8U);
}

TEST(RefusedHostCalls, InDeletingARow) {
    const std::uint64_t calls =
        refuseEachCall({[](Session& session) {
                            showList(session);
                            session.selectRow(kTable, 0);
                        },
                        [](Session& session) { session.click(kDeleteRow); }, checkFlow});

    EXPECT_GT(calls, 6U);
}

TEST(RefusedHostCalls, InDeletingARowWithNoneSelected) {
    const std::uint64_t calls =
        refuseEachCall({showList, [](Session& session) { session.click(kDeleteRow); }, checkFlow});

    EXPECT_GT(calls, 6U);
}

TEST(RefusedHostCalls, InTypingAName) {
    const std::uint64_t calls =
        refuseEachCall({showList,
                        [](Session& session) {
                            host::typeText(session.table(kTable)->getInputAtPosition(0, 0), "a.");
                        },
                        checkFlow});

    EXPECT_GT(calls, 12U);
}

TEST(RefusedHostCalls, InSavingTheList) {
    const std::uint64_t calls = refuseEachCall({addNamedRow,
                                                [](Session& session) {
                                                    storeSettings(session);
                                                    session.click(kSave);
                                                },
                                                checkSaved});

    EXPECT_GT(calls, 10U);
}

TEST(RefusedHostCalls, InOk) {
    const std::uint64_t calls =
        refuseEachCall({openAndPick, [](Session& session) { session.ok(); }, checkFlow});

    EXPECT_GT(calls, 60U);
}

}  // namespace
}  // namespace tarnix
