#include "tests/tarnix/bom/tabs/bom_tabs_test.h"

#include "host/base/gate.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace tarnix {
namespace {

constexpr const char* kAllTabs =
    "QEMA_tab_models_BOM \"Data of Model\"\n"
    "QEMA_tab_structure_BOM \"Structure\"\n"
    "QEMA_tab_config_BOM \"BOM Configuration\"";

constexpr const char* kLastTabs =
    "QEMA_tab_structure_BOM \"Structure\"\n"
    "QEMA_tab_config_BOM \"BOM Configuration\"";

constexpr const char* kFirstTab = "QEMA_tab_models_BOM \"Data of Model\"";
constexpr const char* kPlainException = "std::exception: ";

/// A call that the host refuses while the dialog opens, and what the dialog has then.
struct Refusal {
    const char* name = "";
    const char* design = "Bolt";
    std::vector<std::string> columns = {};
    const char* call = "";
    std::uint64_t nth = 1;

    const char* tabs = kAllTabs;
    std::vector<const char*> made = {};
    std::vector<const char*> missing = {};
    const char* thrown = "";  ///< type and text of the exception
};

std::ostream& operator<<(std::ostream& out, const Refusal& refusal) { return out << refusal.name; }

/// The dialog of a host that refuses one of its inputs.
class RefusedInput : public BomTabsTest {
protected:
    /// Opens the dialog on a design while the host refuses the `nth` call of this name.
    void openBomRefusing(const std::string& outline, const std::string& name, std::uint64_t nth) {
        open(outline);
        host::gate::reset();
        host::gate::refuse(name, nth);
        openBom();
        ASSERT_EQ(host::gate::refusedCall(), name);
    }

    [[nodiscard]] bool hasInput(const char* id) const {
        return static_cast<bool>(session->dialog()->commandInputs()->itemById(id));
    }

    /// Type and text of what was thrown; empty if nothing.
    [[nodiscard]] std::string thrown() {
        std::string all;
        for (const host::UncaughtException& each : faults.exceptions()) {
            all += each.type + ": " + each.text;
        }
        return all;
    }
};

class EachRefusedInput : public RefusedInput, public testing::WithParamInterface<Refusal> {};

TEST_P(EachRefusedInput, LeavesTheDialogAsListed) {
    const Refusal& refusal = GetParam();
    if (!refusal.columns.empty()) {
        configure(refusal.columns);
    }

    openBomRefusing(refusal.design, refusal.call, refusal.nth);

    EXPECT_EQ(tabs(), refusal.tabs);
    for (const char* id : refusal.made) {
        EXPECT_TRUE(hasInput(id)) << id;
    }
    for (const char* id : refusal.missing) {
        EXPECT_FALSE(hasInput(id)) << id;
    }
    EXPECT_EQ(thrown(), refusal.thrown);
}

const std::vector<Refusal> kRefusals = {{.name = "OfATabLeavesItOutQuietly",
                                         .call = "CommandInputs::addTabCommandInput",
                                         .tabs = kLastTabs},
                                        {.name = "OfTheChildrenOfATabLeavesItEmptyQuietly",
                                         .call = "TabCommandInput::children",
                                         .nth = 3,
                                         .missing = {"QEMA_btnSaveConfigBom"}},
                                        {.name = "OfTheModelsTableLeavesTheTabWithItsButton",
                                         .call = "CommandInputs::addTableCommandInput",
                                         .made = {"QEMA_btnExportXls"},
                                         .missing = {"QEMA_bom_models"}},
                                        {.name = "OfTheModelsExportButtonThrowsAPlainException",
                                         .call = "CommandInputs::addBoolValueInput",
                                         .tabs = kFirstTab,
                                         .missing = {"QEMA_bom_models"},
                                         .thrown = kPlainException},
                                        {.name = "OfTheSortOrderEndsTheStructureTabWithWhatIsThere",
                                         .design = "",
                                         .call = "CommandInputs::addDropDownCommandInput",
                                         .missing = {"QEMA_bom_structure", "idAllMass"}},
                                        {.name = "OfTheStructureTableLeavesTheMassOut",
                                         .design = "",
                                         .call = "CommandInputs::addTableCommandInput",
                                         .nth = 2,
                                         .made = {"QEMA_droDown_AscDesc"},
                                         .missing = {"idAllMass"}},
                                        {.name = "OfAPropertyListThrowsWhereAColumnIsSavedForIt",
                                         .design = "",
                                         .columns = {"QEMA_Mass;Mass"},
                                         .call = "DropDownCommandInput::listItems",
                                         .nth = 2,
                                         .thrown = "std::out_of_range: invalid vector subscript"},
                                        {.name = "OfThePhysicalPropertiesThrowsAPlainException",
                                         .columns = {"QEMA_Mass;Mass"},
                                         .call = "Component::getPhysicalProperties",
                                         .tabs = kFirstTab,
                                         .thrown = kPlainException}};

INSTANTIATE_TEST_SUITE_P(OfTheDialog, EachRefusedInput, testing::ValuesIn(kRefusals),
                         [](const auto& refusal) { return std::string(refusal.param.name); });

TEST_F(RefusedInput, OfAPropertyListLeavesTheDropDownsBeforeIt) {
    // The first list is that of the sort order.
    openBomRefusing("", "DropDownCommandInput::listItems", 4);

    EXPECT_EQ(ids(kConfigurationTable, 2),
              " colapseRow positionOcc partNumberOcc bomStructure iProperty_0 iProperty_1");
    EXPECT_EQ(thrown(), "");
}

TEST_F(RefusedInput, OfAnOccurrenceSkipsItQuietly) {
    openBomRefusing("Bolt\nNut", "OccurrenceList::item", 1);

    EXPECT_EQ(column(kModelTable, 3), "Nut");
    EXPECT_EQ(thrown(), "");
}

}  // namespace
}  // namespace tarnix
