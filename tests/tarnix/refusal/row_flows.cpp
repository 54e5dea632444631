#include "tests/support/addin_test.h"
#include "tests/tarnix/refusal/dialog_sweep.h"
#include "tests/tarnix/refusal/refused_flow.h"

#include <string>

namespace refusal {
namespace {

using host::Session;
using test_support::RefusalSweep;

/// An assembly whose parts are handed up, one that is not, equal parts and differing ones.
constexpr const char* kDesign =
    "Frame  attribute=QEMA_PropertiesAttributesGroup/Divided/1\n"
    "  Leg  box=1x2x3 description=\"A leg\"\n"
    "  Foot  number=Leg box=1x1x1 description=Another\n"
    "Drive  attribute=QEMA_PropertiesAttributesGroup/QEMA_Size/10\n"
    "  Bolt  box=1x1x1\n"
    "Bolt\n";

const Texts kColumns = {"QEMA_Part Name;Name", "QEMA_Description;Text", "QEMA_Quantity;Qty",
                        "QEMA_Size;Size"};

constexpr const char* kParts =
    "A  attribute=QEMA_PropertiesAttributesGroup/QEMA_Size/9\n"
    "B  attribute=QEMA_PropertiesAttributesGroup/QEMA_Size/8\n"
    "C  attribute=QEMA_PropertiesAttributesGroup/QEMA_Size/7\n";

const Texts kSizeColumn = {"QEMA_Size;Size"};

constexpr const char* kAssembly = "modelColapseRow_4";
constexpr const char* kMark = "graphPositionOcc_4";

void showModel(Session& session) { showDialog(session, kDesign, kColumns, kModelTab); }

void showParts(Session& session) { showDialog(session, kParts, kSizeColumn, kStructureTab); }

void clickAssembly(Session& session) { session.click(kAssembly); }

void showUnfolded(Session& session) {
    showModel(session);
    clickAssembly(session);
}

void chooseOrder(Session& session) {
    session.choose("QEMA_droDown_AscDesc", "Descending");
    session.clearUncaughtExceptions();
}

void showForSortingByText(Session& session) {
    showDialog(session, kDesign, kColumns, kStructureTab);
    chooseOrder(session);
}

void showForSortingByNumber(Session& session) {
    showParts(session);
    chooseOrder(session);
}

/// Everything is as before except these cells of a table.
void expectChangedAlone(const Session& session, const DialogBefore& before, const char* tableId,
                        const std::string& changed) {
    before.expectCellsAsBefore(session, tableId, changed);
    before.expectDesignAsBefore(session);
    before.expectSettingsAsBefore(session);
}

/// Folding marks the row that is folded, and writes no other text.
void checkMarkAlone(const Session& session, const DialogBefore& before) {
    expectChangedAlone(session, before, kModelTable, kMark);
    expectOneOf(valueOf(session, kMark), {"", "\xE2\x96\x91"});
}

/// Sorting moves rows and loses none. A caption that was in a row's way is not a row.
void checkRows(const Session& session, const DialogBefore& before) {
    expectChangedAlone(session, before, kStructureTable, "_0");
}

void checkStructureAlone(const Session& session, const DialogBefore& before) {
    expectChangedAlone(session, before, kStructureTable, "bomStructure_2");
}

RefusalSweep unfolding() {
    return dialogSweep(kModelTable, showModel, clickAssembly, checkMarkAlone);
}

RefusalSweep folding() {
    return dialogSweep(kModelTable, showUnfolded, clickAssembly, checkMarkAlone);
}

RefusalSweep sortingByText() {
    return dialogSweep(
        kStructureTable, showForSortingByText,
        [](Session& session) { session.click("partNumberOcc_0"); }, checkRows);
}

RefusalSweep sortingByNumber() {
    return dialogSweep(
        kStructureTable, showForSortingByNumber,
        [](Session& session) { session.click("QEMA_Size_0"); }, checkRows);
}

RefusalSweep hidingOfAReference() {
    return dialogSweep(
        kStructureTable, showParts,
        [](Session& session) { session.choose("bomStructure_2", "Reference"); },
        checkStructureAlone);
}

}  // namespace

RefusedFlows rowFlows() {
    return {
        {.name = "WhileARowUnfolds", .sweep = unfolding, .leastCalls = 101},
        {.name = "WhileARowFolds", .sweep = folding, .leastCalls = 101},
        {.name = "WhileRowsAreSortedByText", .sweep = sortingByText, .leastCalls = 101},
        {.name = "WhileRowsAreSortedByNumber", .sweep = sortingByNumber, .leastCalls = 101},
        {.name = "WhileAReferenceGoesOutOfSight", .sweep = hidingOfAReference, .leastCalls = 101}};
}

}  // namespace refusal
