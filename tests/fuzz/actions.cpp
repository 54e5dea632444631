#include "tests/fuzz/actions.h"

#include "tests/support/addin_test.h"

#include "host/session/input_actions.h"

#include <array>
#include <cstddef>
#include <utility>

namespace fuzz {

using namespace adsk::core;
using host::Session;

namespace {

constexpr std::array kTabs = {
    std::pair{test_support::kStructureTab, test_support::kStructureTable},
    std::pair{test_support::kModelTab, test_support::kModelTable},
    std::pair{test_support::kConfigurationTab, test_support::kConfigurationTable}};

constexpr std::array kBesideTables = {"QEMA_droDown_AscDesc", "QEMA_btnSaveConfigBom",
                                      test_support::kExportButton};

constexpr std::array kTexts = {"",    "P",   "7",    "nan",      "2;x", "***different***",
                               "inf", "a_b", "0x1A", "\xC3\xA4", "a b", "-3"};

}  // namespace

Ptr<TableCommandInput> shownTable(const Session& session) {
    const Ptr<CommandInputs> inputs = session.dialog()->commandInputs();
    for (const auto& [tabId, tableId] : kTabs) {
        const Ptr<TabCommandInput> tab = inputs->itemById(tabId);
        if (tab && tab->isActive()) return tab->children()->itemById(tableId);
    }
    return nullptr;
}

void actOn(const Ptr<CommandInput>& input, Choices& choices) {
    if (!input || !host::whyUnusable(input).empty()) return;
    if (const Ptr<DropDownCommandInput> list = input) {
        const std::size_t count = list->listItems()->count();
        if (count > 0) host::chooseItem(input, choices.below(count));
        return;
    }
    const Ptr<StringValueCommandInput> field = input;
    if (field && !field->isReadOnly()) {
        host::pasteText(input, choices.pick(kTexts));
    } else {
        host::click(input);
    }
}

void actInTable(const Session& session, Choices& choices) {
    const Ptr<TableCommandInput> table = shownTable(session);
    if (!table || table->rowCount() == 0) return;
    const auto row = static_cast<int>(choices.below(static_cast<std::size_t>(table->rowCount())));
    const auto columns = static_cast<std::size_t>(table->numberOfColumns()) + 1;
    actOn(table->getInputAtPosition(row, static_cast<int>(choices.below(columns))), choices);
}

void actBesideTables(const Session& session, Choices& choices) {
    actOn(session.dialog()->commandInputs()->itemById(choices.pick(kBesideTables)), choices);
}

void showTab(Session& session, const char* id) {
    if (session.dialog()->commandInputs()->itemById(id)) session.activateTab(id);
}

void changeTab(Session& session, Choices& choices) { showTab(session, choices.pick(kTabs).first); }

}  // namespace fuzz
