#include "tests/tarnix/refusal/dialog_sweep.h"

#include "tests/support/files.h"
#include "tests/support/settings.h"
#include "tests/tarnix/refusal/known_exceptions.h"
#include "tests/tarnix/refusal/session_steps.h"

#include "host/session/table_view.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace refusal {

using namespace adsk::core;
using host::Session;

namespace {

/// What the components hold that the dialog can write, a line for each.
std::string describe(const Session& session) {
    std::string lines;
    for (const host::ComponentData& component : session.design().components) {
        lines += component.name + " | " + component.partNumber + " | " + component.description;
        for (const host::AttributeData& attribute : component.attributes) {
            lines += " " + attribute.name + "=" + attribute.value;
        }
        lines += "\n";
    }
    return lines;
}

/// The ids and texts of all cells of a table, sorted: what it holds, in whatever place.
Texts cellsOf(const Session& session, const char* tableId) {
    const Ptr<TableCommandInput> table = session.table(tableId);
    Texts cells;
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column <= table->numberOfColumns(); ++column) {
            const host::TableCell cell = host::readCell(table, row, column);
            if (cell.kind == host::TableCell::Kind::Empty) continue;
            cells.push_back(cell.id + "=" + cell.text);
        }
    }
    std::sort(cells.begin(), cells.end());
    return cells;
}

}  // namespace

DialogBefore::DialogBefore(const Session& session, const char* tableId)
    : design_(describe(session)),
      settings_(settingsOf(session)),
      cells_(cellsOf(session, tableId)),
      written_(session.design()) {
    written_.addTable(session.table(tableId));
}

void DialogBefore::expectDesignAsBefore(const Session& session) const {
    EXPECT_EQ(describe(session), design_);
}

void DialogBefore::expectSettingsAsBefore(const Session& session) const {
    EXPECT_EQ(settingsOf(session), settings_);
}

void DialogBefore::expectCellsAsBefore(const Session& session, const char* tableId,
                                       const std::string& leftOut) const {
    const auto isLeftOut = [&](const std::string& cell) {
        return cell.substr(0, cell.find('=')).find(leftOut) != std::string::npos;
    };
    Texts cells = cellsOf(session, tableId);
    Texts before = cells_;
    std::erase_if(cells, isLeftOut);
    std::erase_if(before, isLeftOut);
    EXPECT_EQ(cells, before);
}

void DialogBefore::expectNothingStrange(const Session& session) const {
    EXPECT_EQ(written_.findUnexpected(session.design()), "");
}

void showDialog(Session& session, const char* outline, const Texts& columns, const char* tab) {
    test_support::writeFile(session.addin().folder / "Tarnix_configuration.xml",
                            test_support::settingsDocument(columns));
    session.openOutline(outline);
    ASSERT_TRUE(session.run());
    session.press("QM_TX_BOM");
    session.activateTab(tab);
    ASSERT_TRUE(session.uncaughtExceptions().empty());
}

void expectOneOf(const std::string& text, const Texts& texts) {
    EXPECT_NE(std::find(texts.begin(), texts.end(), text), texts.end()) << text;
}

std::string valueOf(const Session& session, const std::string& id) {
    const Ptr<StringValueCommandInput> field = session.input(id);
    return field->value();
}

std::string settingsOf(const Session& session) {
    return test_support::readFile(settingsFileOf(session));
}

test_support::RefusalSweep dialogSweep(const char* tableId, Steps prepare, Steps flow,
                                       DialogCheck check) {
    const auto before = std::make_shared<std::optional<DialogBefore>>();
    test_support::RefusalSweep sweep;
    sweep.prepare = [before, prepare, tableId](Session& session) {
        prepare(session);
        before->emplace(session, tableId);
    };
    sweep.flow = flow;
    sweep.check = [before, check](Session& session, const std::string& /*call*/) {
        expectOnlyKnownThrown(session);
        check(session, before->value());
    };
    return sweep;
}

}  // namespace refusal
