#include "tests/support/addin_test.h"
#include "tests/tarnix/refusal/dialog_refusal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

namespace test_support {
namespace {

using adsk::core::Application;
using host::Session;

/// A row that stands for two parts, one with a property, one that stands in two rows.
constexpr const char* kDesign =
    "Leg  number=L description=\"A leg\"\n"
    "Foot  number=L description=Another\n"
    "Bolt  attribute=QEMA_PropertiesAttributesGroup/QEMA_Size/9\n"
    "Bolt\n";

const Texts kColumns = {"QEMA_Part Name;Name", "QEMA_Description;Text", "QEMA_Quantity;Qty",
                        "QEMA_Size;Size"};

class WriteRefusal : public DialogRefusal {
protected:
    /// Shows a tab, and has a command at hand that takes the dialog's place.
    static void showTab(Session& session, const char* outline, const Texts& columns,
                        const char* tab) {
        show(session, outline, columns, tab);
        Application::get()->userInterface()->commandDefinitions()->addButtonDefinition("AnyCommand",
                                                                                       "Any", "");
    }

    /// Has the dialog written by starting another command: it does not come back then.
    static void write(Session& session) {
        session.press("AnyCommand");
        EXPECT_FALSE(session.dialogOpen());
    }

    void expectWhole(const Session& session) const {
        expectNothingStrange(session);
        expectSettingsAsBefore(session);
    }

    /// A letter for each part: its number is a new one, the old one, or else.
    static std::string progress(const Session& session) {
        std::string letters;
        for (const host::ComponentData& component : session.design().components) {
            const std::string& number = component.partNumber;
            letters += number.ends_with("-2") ? "n" : number.ends_with("-1") ? "o" : "-";
        }
        return letters.substr(1);
    }

    /// Whether one part was left out at most, and behind it all were written or none was.
    static bool leavesOutOne(const std::string& letters) {
        const std::size_t first = std::min(letters.find_first_not_of('n'), letters.size() - 1);
        const std::string behind = letters.substr(first + 1);
        return behind.find_first_not_of('n') == std::string::npos ||
               behind.find_first_not_of('o') == std::string::npos;
    }
};

TEST_F(WriteRefusal, OfTheModelTableStoresNoStrangeText) {
    const auto edit = [](Session& session) {
        showTab(session, kDesign, kColumns, kModelTab);
        session.paste("modelPartNumberOcc_1", "L-2");
        session.paste("QEMA_Part Name_4", "Screw");
        session.paste("QEMA_Description_2", "Stands");
        session.paste("QEMA_Size_4", "12 mm");
        session.choose("modelBomStructure_4", "Buy");
    };

    const std::uint64_t calls =
        sweep(kModelTable, edit, write, [&](Session& session) { expectWhole(session); });

    EXPECT_GT(calls, 300U);
}

TEST_F(WriteRefusal, OfTheStructureTableStoresNoStrangeText) {
    const auto edit = [](Session& session) {
        showTab(session, kDesign, kColumns, kStructureTab);
        session.paste("partNumberOcc_3", "B-2");
        session.paste("QEMA_Description_3", "Holds");
        session.choose("bomStructure_3", "Buy");
    };

    const std::uint64_t calls =
        sweep(kStructureTable, edit, write, [&](Session& session) { expectWhole(session); });

    EXPECT_GT(calls, 150U);
}

TEST_F(WriteRefusal, LeavesWhatWasWritten) {
    const auto edit = [](Session& session) {
        showTab(session, "A  number=A-1\nB  number=B-1\nC  number=C-1\nD  number=D-1\n", {},
                kModelTab);
        session.paste("modelPartNumberOcc_1", "A-2");
        session.paste("modelPartNumberOcc_2", "B-2");
        session.paste("modelPartNumberOcc_3", "C-2");
        session.paste("modelPartNumberOcc_4", "D-2");
    };

    const std::uint64_t calls = sweep(kModelTable, edit, write, [&](Session& session) {
        expectWhole(session);
        EXPECT_TRUE(leavesOutOne(progress(session))) << progress(session);
    });

    EXPECT_GT(calls, 150U);
}

}  // namespace
}  // namespace test_support
