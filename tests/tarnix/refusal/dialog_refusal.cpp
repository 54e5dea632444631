#include "tests/tarnix/refusal/dialog_refusal.h"

#include "tests/support/files.h"
#include "tests/support/refusal.h"
#include "tests/support/settings.h"
#include "tests/tarnix/refusal/known_exceptions.h"

#include "host/session/table_view.h"

#include <algorithm>

namespace test_support {

using adsk::core::Ptr;
using adsk::core::StringValueCommandInput;
using adsk::core::TableCommandInput;
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

/// The ids and texts of all cells of a table, sorted: what it holds wherever it stands.
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

void DialogRefusal::show(Session& session, const char* outline, const Texts& columns,
                         const char* tab) {
    writeFile(session.addin().folder / "Tarnix_configuration.xml", settingsDocument(columns));
    session.openOutline(outline);
    ASSERT_TRUE(session.run());
    session.press("QM_TX_BOM");
    session.activateTab(tab);
    ASSERT_TRUE(session.uncaughtExceptions().empty());
}

std::uint64_t DialogRefusal::sweep(const char* tableId, const Steps& prepare, const Steps& flow,
                                   const Steps& check) {
    const auto prepareAndNote = [&](Session& session) {
        prepare(session);
        designBefore_ = describe(session);
        settingsBefore_ = settingsOf(session);
        cellsBefore_ = cellsOf(session, tableId);
        written_.emplace(session.design());
        written_->addTable(session.table(tableId));
    };
    const auto checkAll = [&](Session& session, const std::string& /*call*/) {
        expectOnlyKnownThrown(session);
        check(session);
    };
    return refuseEachCall({prepareAndNote, flow, checkAll});
}

void DialogRefusal::expectDesignAsBefore(const Session& session) const {
    EXPECT_EQ(describe(session), designBefore_);
}

void DialogRefusal::expectSettingsAsBefore(const Session& session) const {
    EXPECT_EQ(settingsOf(session), settingsBefore_);
}

void DialogRefusal::expectCellsAsBefore(const Session& session, const char* tableId,
                                        const std::string& leftOut) const {
    const auto isLeftOut = [&](const std::string& cell) {
        return cell.substr(0, cell.find('=')).find(leftOut) != std::string::npos;
    };
    Texts cells = cellsOf(session, tableId);
    Texts before = cellsBefore_;
    std::erase_if(cells, isLeftOut);
    std::erase_if(before, isLeftOut);
    EXPECT_EQ(cells, before);
}

void DialogRefusal::expectNothingStrange(const Session& session) const {
    EXPECT_EQ(written_->findStranger(session.design()), "");
}

void DialogRefusal::expectOneOf(const std::string& text, const Texts& texts) {
    EXPECT_NE(std::find(texts.begin(), texts.end(), text), texts.end()) << text;
}

std::string DialogRefusal::valueOf(const Session& session, const std::string& id) {
    const Ptr<StringValueCommandInput> field = session.input(id);
    return field->value();
}

std::string DialogRefusal::settingsOf(const Session& session) {
    return readFile(session.addin().folder / "Tarnix_configuration.xml");
}

}  // namespace test_support
