#include "tests/support/addin_test.h"
#include "tests/tarnix/refusal/dialog_sweep.h"
#include "tests/tarnix/refusal/refused_flow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>

namespace refusal {
namespace {

using namespace adsk::core;
using host::Session;
using test_support::RefusalSweep;

/// A row that merges two parts, a part with a property, and a part in two rows.
constexpr const char* kDesign =
    "Leg  number=L description=\"A leg\"\n"
    "Foot  number=L description=Another\n"
    "Bolt  attribute=QEMA_PropertiesAttributesGroup/QEMA_Size/9\n"
    "Bolt\n";

const Texts kColumns = {"QEMA_Part Name;Name", "QEMA_Description;Text", "QEMA_Quantity;Qty",
                        "QEMA_Size;Size"};

/// Shows a tab, and has a command at hand that takes the dialog's place.
void showTab(Session& session, const char* outline, const Texts& columns, const char* tab) {
    showDialog(session, outline, columns, tab);
    Application::get()->userInterface()->commandDefinitions()->addButtonDefinition("AnyCommand",
                                                                                   "Any", "");
}

/// Has the dialog written by starting another command: it does not come back then.
void write(Session& session) {
    session.press("AnyCommand");
    EXPECT_FALSE(session.dialogOpen());
}

void checkWhole(const Session& session, const DialogBefore& before) {
    before.expectNothingStrange(session);
    before.expectSettingsAsBefore(session);
}

/// A letter for each part: its number is a new one, the old one, or else.
std::string progress(const Session& session) {
    std::string letters;
    for (const host::ComponentData& component : session.design().components) {
        const std::string& number = component.partNumber;
        letters += number.ends_with("-2") ? "n" : number.ends_with("-1") ? "o" : "-";
    }
    return letters.substr(1);
}

/// Whether one part was left out at most, and after it all were written, or not one.
bool leavesOutOne(const std::string& letters) {
    const std::size_t first = std::min(letters.find_first_not_of('n'), letters.size() - 1);
    const std::string after = letters.substr(first + 1);
    return after.find_first_not_of('n') == std::string::npos ||
           after.find_first_not_of('o') == std::string::npos;
}

void checkWrittenInOrder(const Session& session, const DialogBefore& before) {
    checkWhole(session, before);
    EXPECT_TRUE(leavesOutOne(progress(session))) << progress(session);
}

void editModel(Session& session) {
    showTab(session, kDesign, kColumns, kModelTab);
    session.paste("modelPartNumberOcc_1", "L-2");
    session.paste("QEMA_Part Name_4", "Screw");
    session.paste("QEMA_Description_2", "Stands");
    session.paste("QEMA_Size_4", "12 mm");
    session.choose("modelBomStructure_4", "Buy");
}

void editStructure(Session& session) {
    showTab(session, kDesign, kColumns, kStructureTab);
    session.paste("partNumberOcc_3", "B-2");
    session.paste("QEMA_Description_3", "Holds");
    session.choose("bomStructure_3", "Buy");
}

void editNumbers(Session& session) {
    showTab(session, "A  number=A-1\nB  number=B-1\nC  number=C-1\nD  number=D-1\n",
            /*columns=*/{}, kModelTab);
    session.paste("modelPartNumberOcc_1", "A-2");
    session.paste("modelPartNumberOcc_2", "B-2");
    session.paste("modelPartNumberOcc_3", "C-2");
    session.paste("modelPartNumberOcc_4", "D-2");
}

RefusalSweep writtenModel() { return dialogSweep(kModelTable, editModel, write, checkWhole); }

RefusalSweep writtenStructure() {
    return dialogSweep(kStructureTable, editStructure, write, checkWhole);
}

RefusalSweep writtenNumbers() {
    return dialogSweep(kModelTable, editNumbers, write, checkWrittenInOrder);
}

}  // namespace

RefusedFlows writeFlows() {
    return {
        {.name = "OfTheModelTableStoresNoStrangeText", .sweep = writtenModel, .leastCalls = 301},
        {.name = "OfTheStructureTableStoresNoStrangeText",
         .sweep = writtenStructure,
         .leastCalls = 151},
        {.name = "LeavesWhatWasWritten", .sweep = writtenNumbers, .leastCalls = 151}};
}

}  // namespace refusal
