#include "tests/support/addin_test.h"
#include "tests/tarnix/refusal/dialog_refusal.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace test_support {
namespace {

using host::Session;

constexpr const char* kDesign =
    "Leg  attribute=QEMA_PropertiesAttributesGroup/QEMA_Size/9\n"
    "Drive  attribute=QEMA_PropertiesAttributesGroup/QEMA_Size/10\n"
    "  Bolt  box=1x1x1\n";

/// What stands between two marks, each time that they do.
Texts textsBetween(const std::string& document, const std::string& begin, const std::string& end) {
    Texts texts;
    for (std::size_t from = document.find(begin); from != std::string::npos;
         from = document.find(begin, from)) {
        from += begin.size();
        texts.push_back(document.substr(from, document.find(end, from) - from));
    }
    return texts;
}

class ColumnRefusal : public DialogRefusal {
protected:
    static void showColumns(Session& session) { show(session, kDesign, {}, kConfigurationTab); }

    /// The column's two texts are whole ones.
    void expectWholeTexts(const Session& session) const {
        expectDesignAsBefore(session);
        expectSettingsAsBefore(session);
        expectOneOf(valueOf(session, "colUsrHeader_1"), {"not used", "used", "not use"});
        expectOneOf(valueOf(session, "nameCol5"), {"", "Mass"});
    }

    /// The document is whole, and holds chosen columns only.
    void expectWholeColumns(const Session& session) const {
        expectDesignAsBefore(session);
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
};

TEST_F(ColumnRefusal, AtTheChoiceOfAProperty) {
    const std::uint64_t calls = sweep(
        kConfigurationTable, showColumns,
        [](Session& session) { session.choose("iProperty_0", "Mass"); },
        [&](Session& session) { expectWholeTexts(session); });

    EXPECT_GT(calls, 50U);
}

TEST_F(ColumnRefusal, AtTheChoiceOfAHeading) {
    const auto chooseMass = [](Session& session) {
        showColumns(session);
        session.choose("iProperty_0", "Mass");
    };

    const std::uint64_t calls = sweep(
        kConfigurationTable, chooseMass,
        [](Session& session) { session.choose("iProperty_0", "--- User Property ---"); },
        [&](Session& session) { expectWholeTexts(session); });

    EXPECT_GT(calls, 50U);
}

TEST_F(ColumnRefusal, WhileTheColumnsAreSaved) {
    const auto chooseThree = [](Session& session) {
        show(session, kDesign, {"QEMA_Area;Area"}, kConfigurationTab);
        session.choose("iProperty_1", "Mass");
        session.paste("nameCol6", "Weight");
        session.choose("iProperty_4", "Size");
        session.clearUncaughtExceptions();
    };

    const std::uint64_t calls = sweep(
        kConfigurationTable, chooseThree,
        [](Session& session) { session.click("QEMA_btnSaveConfigBom"); },
        [&](Session& session) { expectWholeColumns(session); });

    EXPECT_GT(calls, 100U);
}

}  // namespace
}  // namespace test_support
