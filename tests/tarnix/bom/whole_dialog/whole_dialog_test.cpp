#include "tests/support/leak_check.h"
#include "tests/support/settings.h"
#include "tests/support/written_strings.h"
#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"
#include "tests/tarnix/bom/model/random_design.h"
#include "tests/tarnix/bom/whole_dialog/plain_dialog.h"
#include "tests/tarnix/bom/whole_dialog/refused_call.h"
#include "tests/tarnix/bom/whole_dialog/shown_dialog.h"
#include "tests/tarnix/refusal/known_exceptions.h"

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
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

/// The whole BOM dialog, used at random, against the plain one: after each action all cells and
/// widths of its tables, the field of the mass, the selection, what was thrown, the design, the
/// settings and the exported file are the same. TARNIX_DIALOG_SEEDS asks for more seeds.
///
/// Each seed is used again with a host call refused, any call of any action. Where the rules say
/// what follows, the two are compared as before; elsewhere nothing may be written that was not
/// there, and the plain dialog goes on from what the other one shows.
namespace test_support {
namespace {

using namespace adsk::core;
using host::InputView;
using plain::Tab;

constexpr std::size_t kActions = 20;
constexpr int kRefusals = 1;  ///< of each seed

constexpr std::array kStructures = {"Produce", "Buy", "AsPart", "Divided", "Reference"};
constexpr std::array kCustomKeys = {"QEMA_Colour", "QEMA_Supplier", "QEMA_Mass"};

constexpr std::array kTabs = {std::pair{kModelTab, kModelTable},
                              std::pair{kStructureTab, kStructureTable},
                              std::pair{kConfigurationTab, kConfigurationTable}};

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
        done.clear();
        names_ = 0;
        expected.clear();
        restart(options());
        ASSERT_TRUE(run());
        faults.allowExceptions();
        changeSettings();
        host::DesignData design = randomDesign(random);
        for (host::ComponentData& component : design.components) {
            const double size = 1.0 + static_cast<double>(below(9));
            if (oneIn(2)) component.geometry = host::boxGeometry(1, 2, size);
            component.material = {.name = oneIn(2) ? "Steel" : "Oak",
                                  .density = 0.001 * static_cast<double>(1 + below(3))};
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

    /// Does the same with both, and notes what the plain one throws.
    void act(const std::string& what, const std::function<void()>& plainly,
             const std::function<void()>& really) {
        done += what + "\n";
        expected.clear();
        const bool isRefused = isRefusedNow();
        dialog.calls.begin(isRefused ? refusal->name : "", isRefused ? refusal->nth : 0);
        try {
            plainly();
        } catch (const plain::Thrown& thrown) {
            expected = thrown.type + ": " + thrown.text;
        }
        faults.forgetExceptions();
        host::gate::reset();
        if (isRefused) host::gate::refuse(refusal->name, static_cast<std::uint64_t>(refusal->nth));
        really();
        if (isRefused) {
            EXPECT_EQ(host::gate::refusedCall().value_or("none"), refusal->name);
        }
        actions.back().kind = what;
        actions.back().made = host::gate::counts();
        actions.back().said = dialog.calls.counts();
        dialog.calls.begin();
        host::gate::reset();
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
        // Every third time the toggle, which does most.
        const int column = oneIn(3) ? 0 : static_cast<int>(below(11));
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

    /// A component of the design, at any depth.
    Ptr<adsk::fusion::Component> anyComponent() {
        Ptr<adsk::fusion::OccurrenceList> list = root()->occurrences()->asList();
        Ptr<adsk::fusion::Component> found;
        while (list->count() > 0) {
            const auto occurrence = list->item(below(list->count()));
            if (!occurrence) break;
            found = occurrence->component();
            if (oneIn(2)) break;
            list = occurrence->childOccurrences();
        }
        return found;
    }

    /// Another user of the host changes the design while the dialog is open. Its interface has no
    /// operation that adds or removes an occurrence.
    void changeDesign() {
        const auto component = anyComponent();
        if (!component) return;
        const std::string text = pick(std::array{"P", "Q", "", "other"});
        const std::size_t what = below(6);
        done += "design " + std::to_string(what) + " " + text + "\n";
        if (what == 0) component->partNumber(text);
        if (what == 1) component->description(text);
        if (what == 2) component->name("Other " + std::to_string(++names_));
        if (what == 3) {
            setAttribute(component, pick(kStructures), pick(std::array{"1", "0", ""}));
        }
        if (what == 4) setAttribute(component, pick(kCustomKeys), text);
        if (what == 5) exchangeMaterial(component);
        expected.clear();
        faults.forgetExceptions();
        dialog.design = plain::read(root());
        dialog.selected = split(selected());
    }

    static void setAttribute(const Ptr<adsk::fusion::Component>& component, const char* name,
                             const std::string& value) {
        component->attributes()->add("QEMA_PropertiesAttributesGroup", name, value);
    }

    void exchangeMaterial(const Ptr<adsk::fusion::Component>& component) {
        const auto other = anyComponent();
        if (other && other->material()) component->material(other->material());
    }

    void acceptDialog() {
        const bool isModel = dialog.tab == Tab::Model;
        act(
            isModel ? "accept model" : "accept", [&] { dialog.accept(); }, [&] { session->ok(); });
        if (isRefusedNow() && !refusal->isRuled) return;
        const std::string written = plain::describe(dialog.design);
        if (!dialog.namesClash) {
            EXPECT_EQ(plain::describe(plain::read(root())), written);
        }
        dialog.namesClash = false;
        openDialog();
    }

    [[nodiscard]] bool isRefusedNow() const {
        return refusal != nullptr && refusal->action + 1 == actions.size();
    }

    void step() {
        actions.emplace_back();
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
                return oneIn(2) ? changeSettings() : changeDesign();
            default:
                return useCell();
        }
    }

    /// What was done without a call that the rules do not say holds only strings that were there,
    /// and throws what is known. From then on the plain dialog is what the other one is.
    void expectConsistent(const WrittenStrings& written) {
        for (const auto& thrown : session->uncaughtExceptions()) {
            EXPECT_TRUE(isKnown(thrown)) << thrown.type << " " << thrown.text;
        }
        EXPECT_EQ(written.findUnexpected(session->design()), "");
        faults.forgetExceptions();
        expected.clear();
        if (actions.back().kind.starts_with("accept")) return openAgain();
        adoptTables();
        dialog.selected = split(selected());
        dialog.exported = csv();
        dialog.design = plain::read(root());
        adoptSettings();
    }

    void adoptSettings() {
        dialog.stored = columnsIn(readFile(settingsFile()));
        dialog.items = dialog.stored;
        for (std::string& item : dialog.items) {
            if (item.ends_with(";")) item += "missing";
        }
    }

    void adoptTables() {
        const host::DialogView view = host::readDialog();
        for (std::size_t i = 0; i < kTabs.size(); ++i) {
            const InputView& page = inputOf(view.inputs, kTabs[i].first);
            dialog.adopt(tabAt(i), tableOf(inputOf(page.inputs, kTabs[i].second).table));
        }
        const InputView& structure = inputOf(view.inputs, kStructureTab);
        dialog.mass = inputOf(structure.inputs, "idAllMass").value;
        dialog.massShown = inputOf(structure.inputs, "idAllMass").visible;
    }

    /// Closes what the refused call left of the dialog, and opens it again. It goes on with the
    /// number of its first row, and with the names that it lists.
    void openAgain() {
        if (session->dialogOpen()) session->cancel();
        adoptSettings();
        openBom();
        const host::DialogView view = host::readDialog();
        const InputView& model = inputOf(view.inputs, kModelTab);
        const host::TableContents& rows = inputOf(model.inputs, kModelTable).table;
        if (rows.rows.size() > 1) {
            dialog.modelRowCounter = std::atoi(rows.rows[1].cells[1].value.c_str());
        }
        const InputView& configuration = inputOf(view.inputs, kConfigurationTab);
        const auto& list = inputOf(configuration.inputs, kConfigurationTable).table;
        dialog.userNames.clear();
        constexpr std::size_t kFixedItems = 15;
        const auto& items = list.rows[2].cells[4].items;
        for (std::size_t i = kFixedItems; i < items.size(); ++i) {
            dialog.userNames.push_back(items[i].name);
        }
        dialog.namesClash = false;
        openDialog();
    }

    /// Uses the dialog, and notes the calls of each action.
    std::vector<CallsOfAction> rehearse(unsigned seed) {
        refusal = nullptr;
        actions.clear();
        begin(seed);
        expectTheSame();
        while (actions.size() < kActions && !HasFailure()) {
            step();
            expectTheSame();
        }
        return actions;
    }

    /// Does the same again as far as to an action in which a call is refused, and a little more.
    void performWithout(unsigned seed, const Refusal& refused) {
        refusal = &refused;
        actions.clear();
        begin(seed);
        while (actions.size() < refused.action) step();
        WrittenStrings written(session->design());
        if (const auto table = shownTableInput()) written.addTable(table);
        step();
        done += "without call " + std::to_string(refused.nth) + " of " + refused.name +
                (refused.isRuled ? ", ruled\n" : "\n");
        if (!refused.isRuled) expectConsistent(written);
        expectTheSame();
        constexpr int kMore = 3;
        for (int more = 0; more < kMore && !HasFailure(); ++more) {
            step();
            expectTheSame();
        }
    }

    void expectTheSame() {
        const host::DialogView view = host::readDialog();
        for (std::size_t i = 0; i < kTabs.size(); ++i) {
            const InputView& page = inputOf(view.inputs, kTabs[i].first);
            const InputView& table = inputOf(page.inputs, kTabs[i].second);
            expectSame(table.table, dialog.table(tabAt(i)), kTabs[i].second);
            EXPECT_EQ(page.active, dialog.tab == tabAt(i));
        }
        const InputView& structure = inputOf(view.inputs, kStructureTab);
        const InputView& mass = inputOf(structure.inputs, "idAllMass");
        EXPECT_EQ(mass.value, dialog.mass);
        EXPECT_EQ(mass.visible, dialog.massShown);
        EXPECT_EQ(plain::describe(plain::read(root())), plain::describe(dialog.design));
        EXPECT_EQ(sortedLines(split(selected())), sortedLines(dialog.selected));
        EXPECT_EQ(csv(), dialog.exported);
        EXPECT_EQ(rootOf(readFile(settingsFile())), rootOf(settingsDocument(dialog.stored)));
        const auto& thrown = session->uncaughtExceptions();
        EXPECT_EQ(thrown.empty() ? "" : thrown.front().type + ": " + thrown.front().text, expected);
        EXPECT_LE(thrown.size(), 1U);
    }

    std::mt19937 random;
    plain::Dialog dialog;
    std::string expected;  ///< what the last action throws
    std::string done;
    std::vector<CallsOfAction> actions;  ///< those so far
    const Refusal* refusal = nullptr;    ///< null for none

private:
    int names_ = 0;
};

TEST_F(WholeDialog, UsedAtRandomIsThePlainOne) {
    int ruled = 0;
    int refused = 0;
    for (int seed = firstSeed(); seed < firstSeed() + seeds(); ++seed) {
        const auto number = static_cast<unsigned>(seed);
        const std::vector<CallsOfAction> calls = rehearse(number);
        ASSERT_FALSE(HasFailure()) << "seed " << seed << " after\n" << done;
        std::mt19937 refusals(number);
        for (int time = 0; time < kRefusals; ++time) {
            const std::optional<Refusal> picked = pickRefusal(calls, refusals);
            if (!picked) continue;
            performWithout(number, *picked);
            ASSERT_FALSE(HasFailure()) << "seed " << seed << " after\n" << done;
            ++refused;
            if (picked->isRuled) ++ruled;
        }
    }
    // A third of the calls is the rules' own: where fewer are, calls are no longer counted alike.
    EXPECT_GE(3 * ruled, refused) << ruled << " of " << refused;
}

}  // namespace
}  // namespace test_support
