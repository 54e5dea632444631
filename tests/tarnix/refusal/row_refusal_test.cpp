#include "tests/support/addin_test.h"
#include "tests/tarnix/refusal/dialog_refusal.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace test_support {
namespace {

using host::Session;

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

class RowRefusal : public DialogRefusal {
protected:
    static constexpr const char* kAssembly = "modelColapseRow_4";
    static constexpr const char* kMark = "graphPositionOcc_4";

    static void showModel(Session& session) { show(session, kDesign, kColumns, kModelTab); }

    static void showParts(Session& session) { show(session, kParts, kSizeColumn, kStructureTab); }

    static void chooseOrder(Session& session) {
        session.choose("QEMA_droDown_AscDesc", "Descending");
        session.clearUncaughtExceptions();
    }

    /// All is as before but for these cells of a table.
    void expectChangedAlone(const Session& session, const char* tableId,
                            const std::string& changed) const {
        expectCellsAsBefore(session, tableId, changed);
        expectDesignAsBefore(session);
        expectSettingsAsBefore(session);
    }

    /// Folding marks the row that is folded, and writes no other text.
    void expectMarkAlone(const Session& session) const {
        expectChangedAlone(session, kModelTable, kMark);
        expectOneOf(valueOf(session, kMark), {"", "\xE2\x96\x91"});
    }

    /// Sorting moves rows and loses none. A caption that was in a row's way is none of them.
    void expectRowsAsBefore(const Session& session) const {
        expectChangedAlone(session, kStructureTable, "_0");
    }
};

TEST_F(RowRefusal, WhileARowUnfolds) {
    const std::uint64_t calls = sweep(
        kModelTable, showModel, [](Session& session) { session.click(kAssembly); },
        [&](Session& session) { expectMarkAlone(session); });

    EXPECT_GT(calls, 100U);
}

TEST_F(RowRefusal, WhileARowFolds) {
    const auto unfold = [](Session& session) {
        showModel(session);
        session.click(kAssembly);
    };

    const std::uint64_t calls = sweep(
        kModelTable, unfold, [](Session& session) { session.click(kAssembly); },
        [&](Session& session) { expectMarkAlone(session); });

    EXPECT_GT(calls, 100U);
}

TEST_F(RowRefusal, WhileRowsAreSortedByText) {
    const auto prepare = [](Session& session) {
        show(session, kDesign, kColumns, kStructureTab);
        chooseOrder(session);
    };

    const std::uint64_t calls = sweep(
        kStructureTable, prepare, [](Session& session) { session.click("partNumberOcc_0"); },
        [&](Session& session) { expectRowsAsBefore(session); });

    EXPECT_GT(calls, 100U);
}

TEST_F(RowRefusal, WhileRowsAreSortedByNumber) {
    const auto prepare = [](Session& session) {
        showParts(session);
        chooseOrder(session);
    };

    const std::uint64_t calls = sweep(
        kStructureTable, prepare, [](Session& session) { session.click("QEMA_Size_0"); },
        [&](Session& session) { expectRowsAsBefore(session); });

    EXPECT_GT(calls, 100U);
}

TEST_F(RowRefusal, WhileAReferenceGoesOutOfSight) {
    const std::uint64_t calls = sweep(
        kStructureTable, showParts,
        [](Session& session) { session.choose("bomStructure_2", "Reference"); },
        [&](Session& session) { expectChangedAlone(session, kStructureTable, "bomStructure_2"); });

    EXPECT_GT(calls, 100U);
}

}  // namespace
}  // namespace test_support
