#include "tests/support/leak_check.h"
#include "tests/support/settings.h"
#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"
#include "tests/tarnix/bom/model/random_design.h"
#include "tests/tarnix/bom/whole_dialog/plain_dialog.h"

#include "host/base/gate.h"
#include "host/design/geometry.h"
#include "host/session/dialog_view.h"
#include "host/session/input_actions.h"
#include "tests/support/files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <random>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// The whole BOM dialog, used at random, against the plain one: after each action all cells and
/// widths of its tables, the field of the mass, the selection, what was thrown, the design, the
/// settings and the exported file are the same. TARNIX_DIALOG_SEEDS asks for more seeds.
namespace test_support {
namespace {

using namespace adsk::core;
using host::InputView;
using plain::Tab;

constexpr int kActions = 20;

constexpr std::array kTabs = {std::pair{kModelTab, kModelTable},
                              std::pair{kStructureTab, kStructureTable},
                              std::pair{kConfigurationTab, kConfigurationTable}};

std::string line(int row, int column, const plain::Cell& cell) {
    std::string text = std::to_string(row) + "," + std::to_string(column) + " " + cell.kind + " " +
                       cell.id + " | " + cell.caption + " | " + cell.value + " | " + cell.picture;
    for (const auto& [name, isChosen] : cell.items) text += " " + name + (isChosen ? "*" : "");
    return text + (cell.visible ? " shown" : " hidden") + (cell.readOnly ? " fixed" : "") + "\n";
}

plain::Cell cellOf(const InputView& view) {
    plain::Cell cell;
    cell.kind = view.kind;
    cell.id = view.id;
    cell.caption = view.caption;
    cell.value = view.kind == "DropDown" ? "" : view.value;
    cell.picture = view.picture;
    for (const auto& item : view.items) cell.items.emplace_back(item.name, item.selected);
    cell.visible = view.visible;
    cell.readOnly = view.readOnly;
    return cell;
}

const InputView& inputOf(const std::vector<InputView>& inputs, const std::string& id) {
    const auto found = std::find_if(inputs.begin(), inputs.end(),
                                    [&](const InputView& each) { return each.id == id; });
    return found == inputs.end() ? throw std::runtime_error("no input " + id) : *found;
}

std::string tableOf(const host::TableContents& table) {
    std::string text = std::to_string(table.columns) + " columns, " + table.ratio + "\n";
    for (const auto& row : table.rows) {
        for (const auto& cell : row.cells) text += line(row.row, cell.column, cellOf(cell));
    }
    return text;
}

std::string tableOf(const plain::Table& table) {
    std::string text = std::to_string(table.columns) + " columns, " + table.ratio + "\n";
    for (int row = 0; row < table.rowCount(); ++row) {
        for (const auto& [column, cell] : table.rows[static_cast<std::size_t>(row)]) {
            text += line(row, column, cell);
        }
    }
    return text;
}

std::string sortedLines(std::vector<std::string> lines) {
    std::sort(lines.begin(), lines.end());
    std::string text;
    for (const std::string& each : lines) text += each + "\n";
    return text;
}

/// The root element, in which elements without content are written in the short way.
std::string rootOf(const std::string& document) {
    const std::size_t begin = document.find("<configuration");
    static const std::regex empty("<(\\w+)([^>]*)></\\1>");
    return std::regex_replace(document.substr(begin, document.rfind('>') - begin), empty,
                              "<$1$2/>");
}

int seeds() {
    const char* const asked = std::getenv("TARNIX_DIALOG_SEEDS");
    return asked != nullptr ? std::atoi(asked) : DIALOG_SEEDS;
}

int firstSeed() {
    const char* const asked = std::getenv("TARNIX_DIALOG_FIRST_SEED");
    return asked != nullptr ? std::atoi(asked) : 1;
}

class WholeDialog : public BomDialogTest {
protected:
    [[nodiscard]] host::SessionOptions options() const override {
        host::SessionOptions many = addinOptions();
        many.unloadAtEnd = !test_support::looksForLeaks();
        return many;
    }

    std::size_t below(std::size_t bound) { return random() % bound; }
    bool oneIn(std::size_t chances) { return below(chances) == 0; }

    template <class Choices>
    auto pick(const Choices& choices) {
        return choices[below(choices.size())];
    }

    void begin(unsigned seed) {
        random.seed(seed);
        dialog = {};
        expected.clear();
        restart(options());
        ASSERT_TRUE(run());
        faults.allowExceptions();
        changeSettings();
        host::DesignData design = randomDesign(random);
        for (host::ComponentData& component : design.components) {
            const double size = 1.0 + static_cast<double>(below(9));
            if (oneIn(2)) component.geometry = host::boxGeometry(1, 2, size);
        }
        session->openDesign(std::move(design));
        openDialog();
    }

    void changeSettings() {
        const std::array<const char*, 8> choices = {
            "QEMA_Part Name;Name", "QEMA_Description;Text", "QEMA_Quantity;Quantity",
            "QEMA_Mass;Mass",      "QEMA_Colour;Colour",    "QEMA_Part Number;No.",
            "QEMA_Volume;Volume",  "QEMA_Supplier;From"};
        dialog.stored.clear();
        for (std::size_t count = oneIn(2) ? 6 : below(7); count > 0; --count) {
            dialog.stored.emplace_back(pick(choices));
        }
        dialog.items = dialog.stored;
        configure(dialog.stored);
    }

    /// What is not the dialog's own begins as the host has it.
    void openDialog() {
        if (!session->dialogOpen()) openBom();
        dialog.design = plain::read(root());
        dialog.open();
        dialog.selected = split(selected());
    }

    static std::vector<std::string> split(const std::string& text) {
        std::istringstream in(text);
        std::vector<std::string> lines;
        for (std::string each; std::getline(in, each);) lines.push_back(each);
        return lines;
    }

    /// Does the same with both, and notes what the plain one throws.
    void act(const std::string& what, const std::function<void()>& plainly,
             const std::function<void()>& really) {
        done += what + (dialog.isRefused ? ", refused\n" : "\n");
        expected.clear();
        if (dialog.isRefused) {
            host::gate::refuse(
                pick(std::array{"Application::activeProduct", "Design::rootComponent"}), 1);
        }
        try {
            plainly();
        } catch (const plain::Thrown& thrown) {
            expected = thrown.type + ": " + thrown.text;
        }
        faults.forgetExceptions();
        really();
        // An action that the host does not report leaves the refusal behind.
        host::gate::reset();
        dialog.isRefused = false;
    }

    [[nodiscard]] Tab tabAt(std::size_t index) const { return static_cast<Tab>(index); }

    void showTab() {
        const std::size_t chosen = below(kTabs.size());
        act(
            std::string("show ") + kTabs[chosen].first, [&] { dialog.show(tabAt(chosen)); },
            [&] { session->activateTab(kTabs[chosen].first); });
    }

    void useBesideTable() {
        if (dialog.tab == Tab::Configuration) {
            act(
                "save columns", [&] { dialog.save(); },
                [&] { session->click("QEMA_btnSaveConfigBom"); });
        } else if (dialog.tab == Tab::Structure && oneIn(2)) {
            const std::string order = pick(std::array{"Ascending", "Descending"});
            act(
                "order " + order, [&] { dialog.chooseOrder(order); },
                [&] { session->choose("QEMA_droDown_AscDesc", order); });
        } else {
            act(
                "export", [&] { dialog.exportTable(); }, [&] { session->click(kExportButton); });
        }
    }

    void useCell() {
        const Ptr<TableCommandInput> table = shownTableInput();
        if (table->rowCount() == 0) return;
        const int row = static_cast<int>(below(static_cast<std::size_t>(table->rowCount())));
        const int column = static_cast<int>(below(11));
        const Ptr<CommandInput> cell = table->getInputAtPosition(row, column);
        if (!cell || !host::whyUnusable(cell).empty()) return;
        const std::string what = " " + std::to_string(row) + "," + std::to_string(column) + " ";
        if (const Ptr<DropDownCommandInput> list = cell) {
            const std::size_t item = below(list->listItems()->count());
            act(
                "choose" + what + std::to_string(item), [&] { dialog.choose(row, column, item); },
                [&] { host::chooseItem(cell, item); });
        } else if (const Ptr<BoolValueCommandInput> button = cell) {
            act(
                "click" + what, [&] { dialog.click(row, column); }, [&] { host::click(cell); });
        } else {
            pasteInto(cell, row, column);
        }
    }

    void pasteInto(const Ptr<CommandInput>& cell, int row, int column) {
        const Ptr<StringValueCommandInput> field = cell;
        if (!field || field->isReadOnly()) return;
        // The host makes names of components unique in its own way.
        const bool isName = cell->id().starts_with("QEMA_Part Name_");
        const std::string text =
            isName ? "Name " + std::to_string(++names_)
                   : pick(std::array{"", "P", "Q", "7", "1.2.3", "x;y", "***different***", "a_b"});
        act(
            "paste " + std::to_string(row) + "," + std::to_string(column) + " " + text,
            [&] { dialog.paste(row, column, text); }, [&] { host::pasteText(cell, text); });
    }

    /// Somebody else changes the design while the dialog is open.
    void changeDesign() {
        const auto top = root()->occurrences()->asList();
        const auto occurrence = top->item(below(top->count()));
        if (!occurrence) return;
        const std::string text = pick(std::array{"P", "Q", "", "other"});
        done += "design " + text + "\n";
        if (oneIn(2)) {
            occurrence->component()->partNumber(text);
        } else {
            occurrence->component()->description(text);
        }
        expected.clear();
        faults.forgetExceptions();
        dialog.design = plain::read(root());
    }

    void acceptDialog() {
        act(
            "accept", [&] { dialog.accept(); }, [&] { session->ok(); });
        const std::string written = plain::describe(dialog.design);
        if (!dialog.namesClash) {
            EXPECT_EQ(plain::describe(plain::read(root())), written);
        }
        dialog.namesClash = false;
        openDialog();
    }

    void step() {
        dialog.isRefused = oneIn(20);
        switch (below(16)) {
            case 0:
                return acceptDialog();
            case 1:
            case 2:
            case 3:
                return showTab();
            case 4:
            case 5:
                return useBesideTable();
            case 6:
                dialog.isRefused = false;
                return oneIn(2) ? changeSettings() : changeDesign();
            default:
                return useCell();
        }
    }

    void expectTheSame() {
        const host::DialogView view = host::readDialog();
        for (std::size_t i = 0; i < kTabs.size(); ++i) {
            const InputView& page = inputOf(view.inputs, kTabs[i].first);
            const InputView& table = inputOf(page.inputs, kTabs[i].second);
            EXPECT_EQ(tableOf(table.table), tableOf(dialog.table(tabAt(i)))) << kTabs[i].second;
            EXPECT_EQ(page.active, dialog.tab == tabAt(i));
        }
        const InputView& structure = inputOf(view.inputs, kStructureTab);
        const InputView& mass = inputOf(structure.inputs, "idAllMass");
        EXPECT_EQ(mass.value, dialog.mass);
        EXPECT_EQ(mass.visible, !dialog.mass.empty());
        EXPECT_EQ(plain::describe(plain::read(root())), plain::describe(dialog.design));
        EXPECT_EQ(sortedLines(split(selected())), sortedLines(dialog.selected));
        EXPECT_EQ(csv(), dialog.exported);
        const std::string settings = readFile(settingsFile());
        const std::string wanted = settingsDocument(dialog.stored);
        EXPECT_EQ(rootOf(settings), rootOf(wanted));
        const auto& thrown = session->uncaughtExceptions();
        EXPECT_EQ(thrown.empty() ? "" : thrown.front().type + ": " + thrown.front().text, expected);
        EXPECT_LE(thrown.size(), 1U);
    }

    std::mt19937 random;
    plain::Dialog dialog;
    std::string expected;  ///< what the last action throws
    std::string done;

private:
    int names_ = 0;
};

TEST_F(WholeDialog, UsedAtRandomIsThePlainOne) {
    for (int seed = firstSeed(); seed < firstSeed() + seeds(); ++seed) {
        begin(static_cast<unsigned>(seed));
        done.clear();
        expectTheSame();
        for (int action = 0; action < kActions && !HasFailure(); ++action) {
            step();
            expectTheSame();
        }
        ASSERT_FALSE(HasFailure()) << "seed " << seed << " after\n" << done;
    }
}

}  // namespace
}  // namespace test_support
