#include "tests/support/addin_test.h"
#include "tests/tarnix/refusal/known_exceptions.h"
#include "tests/tarnix/refusal/refused_flow.h"

#include "host/base/clock.h"
#include "host/base/utf8_path.h"
#include "host/cloud/storage_pace.h"
#include "host/design/design_file.h"
#include "host/design/outline.h"
#include "host/session/dialog_answers.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace refusal {
namespace {

using host::Session;
using test_support::RefusalSweep;

constexpr const char* kDesign =
    "Housing  at=1,2,3\n"
    "Shaft  at=4,5,6\n";

void checkFlow(Session& session, const std::string& /*call*/) {
    expectOnlyPlainThrown(session);
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
    host::system_overrides::set(screen);
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

/// As far as the dialog lets the user go: some of it may be missing.
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

/// Presses the command's button.
template <const char* kCommand>
void press(Session& session) {
    session.press(kCommand);
}

constexpr char kProjectedEntities[] = "QM_TX_projectedEntitiesAsConstruction";
constexpr char kOnLineModels[] = "QM_TX_onLineLibrary";
constexpr char kUnitsConversion[] = "QM_TX_unitsConversion";
constexpr char kOpenLocalFile[] = "QEMA_OpenLocalCmd_QAT";

/// The sweep of a flow, begun where `prepare` leaves the session.
template <void (*prepare)(Session&), void (*flow)(Session&)>
RefusalSweep sweepOf() {
    return {.prepare = prepare, .flow = flow, .check = checkFlow};
}

}  // namespace

RefusedFlows commandFlows() {
    return {
        {.name = "InMoveToOrigin", .sweep = sweepOf<start, moveToOrigin>, .leastCalls = 26},
        {.name = "InProjectedEntities",
         .sweep = sweepOf<startSketch, press<kProjectedEntities>>,
         .leastCalls = 16},
        {.name = "InOnLineModels", .sweep = sweepOf<start, press<kOnLineModels>>, .leastCalls = 16},
        {.name = "InTheFirstUnitsConversion",
         .sweep = sweepOf<startAtScreen, press<kUnitsConversion>>,
         .leastCalls = 16},
        {.name = "InTheSecondUnitsConversion",
         .sweep = sweepOf<openPalette, press<kUnitsConversion>>,
         .leastCalls = 16},
        {.name = "InOpenLocalFile",
         .sweep = sweepOf<startWithFiles, press<kOpenLocalFile>>,
         .leastCalls = 61}};
}

}  // namespace refusal
