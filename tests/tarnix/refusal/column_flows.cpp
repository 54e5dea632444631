#include "tests/support/addin_test.h"
#include "tests/tarnix/refusal/dialog_sweep.h"
#include "tests/tarnix/refusal/refused_flow.h"

#include <gtest/gtest.h>

#include <string>

namespace refusal {
namespace {

using host::Session;
using test_support::kConfigurationTab;
using test_support::kConfigurationTable;
using test_support::RefusalSweep;

constexpr const char* kDesign =
    "Leg  attribute=QEMA_PropertiesAttributesGroup/QEMA_Size/9\n"
    "Drive  attribute=QEMA_PropertiesAttributesGroup/QEMA_Size/10\n"
    "  Bolt  box=1x1x1\n";

/// What is between two marks, for each occurrence of them.
Texts textsBetween(const std::string& document, const std::string& begin, const std::string& end) {
    Texts texts;
    for (std::size_t from = document.find(begin); from != std::string::npos;
         from = document.find(begin, from)) {
        from += begin.size();
        texts.push_back(document.substr(from, document.find(end, from) - from));
    }
    return texts;
}

void showColumns(Session& session) {
    showDialog(session, kDesign, /*columns=*/{}, kConfigurationTab);
}

void chooseMass(Session& session) { session.choose("iProperty_0", "Mass"); }

/// The column's two texts are whole ones.
void checkWholeTexts(const Session& session, const DialogBefore& before) {
    before.expectDesignAsBefore(session);
    before.expectSettingsAsBefore(session);
    expectOneOf(valueOf(session, "colUsrHeader_1"), {"not used", "used", "not use"});
    expectOneOf(valueOf(session, "nameCol5"), {"", "Mass"});
}

/// The document is whole, and holds chosen columns only.
void checkWholeColumns(const Session& session, const DialogBefore& before) {
    before.expectDesignAsBefore(session);
    const std::string document = settingsOf(session);
    EXPECT_NE(document.find("</configuration>"), std::string::npos);
    // A name or a caption that was refused is an empty one.
    for (const std::string& id : textsBetween(document, "<item_bomItems id=\"", "\"")) {
        expectOneOf(id, {"QEMA_Area", "QEMA_Mass", "QEMA_Size", "QEMA_"});
    }
    for (const std::string& text : textsBetween(document, "<displayName>", "</displayName>")) {
        expectOneOf(text, {"Area", "Weight", "Size"});
    }
}

RefusalSweep choiceOfAProperty() {
    return dialogSweep(kConfigurationTable, showColumns, chooseMass, checkWholeTexts);
}

void showChosenMass(Session& session) {
    showColumns(session);
    chooseMass(session);
}

RefusalSweep choiceOfAHeading() {
    return dialogSweep(
        kConfigurationTable, showChosenMass,
        [](Session& session) { session.choose("iProperty_0", "--- User Property ---"); },
        checkWholeTexts);
}

void chooseThree(Session& session) {
    showDialog(session, kDesign, {"QEMA_Area;Area"}, kConfigurationTab);
    session.choose("iProperty_1", "Mass");
    session.paste("nameCol6", "Weight");
    session.choose("iProperty_4", "Size");
    session.clearUncaughtExceptions();
}

RefusalSweep savedColumns() {
    return dialogSweep(
        kConfigurationTable, chooseThree,
        [](Session& session) { session.click("QEMA_btnSaveConfigBom"); }, checkWholeColumns);
}

}  // namespace

RefusedFlows columnFlows() {
    return {{.name = "AtTheChoiceOfAProperty", .sweep = choiceOfAProperty, .leastCalls = 51},
            {.name = "AtTheChoiceOfAHeading", .sweep = choiceOfAHeading, .leastCalls = 51},
            {.name = "WhileTheColumnsAreSaved", .sweep = savedColumns, .leastCalls = 101}};
}

}  // namespace refusal
