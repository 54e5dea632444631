// Every host call of the small commands, refused once each: the add-in neither crashes nor loses
// memory, throws nothing but the plain exception of a null handle, and every wait comes to an end.

#include "tests/support/addin_test.h"
#include "tests/support/refusal.h"

#include "host/base/clock.h"
#include "host/base/utf8_path.h"
#include "host/cloud/storage_pace.h"
#include "host/design/design_file.h"
#include "host/design/outline.h"
#include "host/ui/dialogs/file_dialog.h"
#include "host/ui/dialogs/progress_dialog.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

using host::Session;
using test_support::refuseEachCall;

constexpr const char* kDesign =
    "Housing  at=1,2,3\n"
    "Shaft  at=4,5,6\n";

void expectPlainExceptionsAlone(Session& session, const std::string& call) {
    for (const host::UncaughtException& thrown : session.uncaughtExceptions()) {
        EXPECT_EQ(thrown.type, "std::exception") << thrown.text << " after " << call;
        EXPECT_EQ(thrown.text, "") << "after " << call;
    }
    if (session.dialogOpen()) {
        session.cancel();
    }
    session.stop();
}

void start(Session& session) {
    session.openOutline(kDesign);
    ASSERT_TRUE(session.run());
}

/// Opens a sketch with a projected and a drawn curve for edit.
void startSketch(Session& session) {
    start(session);
    host::DesignData design = host::parseOutline(kDesign);
    design.components.front().sketches = {{"Outline", {{true, false}, {false, false}}}};
    session.openDesign(design);
    session.editSketch(0, 0);
}

/// Shows a window of the host.
void startAtScreen(Session& session) {
    start(session);
    host::SystemOverrides screen;
    screen.windows = std::vector<host::WindowShown>{{"Autodesk Fusion 360", {0, 0, 800, 600}}};
    host::system_overrides::start(screen);
}

/// A file to import and one to upload lie in the session's folder; what would wait for ever is
/// cancelled.
void startWithFiles(Session& session) {
    start(session);
    std::filesystem::create_directories(session.folder() / "data" / "Workshop");
    session.useData({session.folder() / "data", "", host::ReferencedFiles::KnownAtOnce});
    const std::filesystem::path part = session.folder() / "part.f3d";
    const std::filesystem::path model = session.folder() / "model.ipt";
    host::saveDesignFile(part, host::parseOutline(kDesign));
    host::saveDesignFile(model, host::parseOutline(kDesign));
    host::storagePace().uploadSeconds = 2;
    host::storagePace().conversionSeconds = 2;
    host::clock::schedule(50, [] {
        if (host::progressDialog()) host::cancelProgress();
    });
    host::answerNextFileDialog(std::vector<std::string>{host::toUtf8(part), host::toUtf8(model)});
}

void openPalette(Session& session) {
    startAtScreen(session);
    session.press("QM_TX_unitsConversion");
}

/// As far as the dialog lets a person go: some of it may be missing.
void moveToOrigin(Session& session) {
    session.press("QM_TX_moveComponentToOrigin");
    if (!session.dialogOpen()) return;
    session.pick("Housing:1");
    session.pick("Shaft:1");
    if (session.dialog()->commandInputs()->itemById("ground")) {
        session.click("ground");
    }
    session.ok();
}

TEST(RefusedHostCallsOfCommands, InMoveToOrigin) {
    const std::uint64_t calls = refuseEachCall({start, moveToOrigin, expectPlainExceptionsAlone});

    EXPECT_GT(calls, 25U);
}

TEST(RefusedHostCallsOfCommands, InProjectedEntities) {
    const std::uint64_t calls = refuseEachCall(
        {startSketch,
         [](Session& session) { session.press("QM_TX_projectedEntitiesAsConstruction"); },
         expectPlainExceptionsAlone});

    EXPECT_GT(calls, 15U);
}

TEST(RefusedHostCallsOfCommands, InOnLineModels) {
    const std::uint64_t calls =
        refuseEachCall({start, [](Session& session) { session.press("QM_TX_onLineLibrary"); },
                        expectPlainExceptionsAlone});

    EXPECT_GT(calls, 15U);
}

TEST(RefusedHostCallsOfCommands, InTheFirstUnitsConversion) {
    const std::uint64_t calls = refuseEachCall(
        {startAtScreen, [](Session& session) { session.press("QM_TX_unitsConversion"); },
         expectPlainExceptionsAlone});

    EXPECT_GT(calls, 15U);
}

TEST(RefusedHostCallsOfCommands, InTheSecondUnitsConversion) {
    const std::uint64_t calls = refuseEachCall(
        {openPalette, [](Session& session) { session.press("QM_TX_unitsConversion"); },
         expectPlainExceptionsAlone});

    EXPECT_GT(calls, 15U);
}

TEST(RefusedHostCallsOfCommands, InOpenLocalFile) {
    const std::uint64_t calls = refuseEachCall(
        {startWithFiles, [](Session& session) { session.press("QEMA_OpenLocalCmd_QAT"); },
         expectPlainExceptionsAlone});

    EXPECT_GT(calls, 60U);
}

}  // namespace
