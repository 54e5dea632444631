#include "tarnix/bom/behaviour/row_collapse.h"
#include "tarnix/bom/behaviour/structure_sort.h"

#include "tests/support/addin_test.h"
#include "tests/tarnix/bom/behaviour/reference_folding.h"
#include "tests/tarnix/bom/behaviour/reference_sorting.h"
#include "tests/tarnix/bom/behaviour/synthetic_dialog.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <random>
#include <string>
#include <vector>

/// The product's folding and sorting against the references, on tables that no design leads to.
namespace test_support {
namespace {

using namespace adsk::core;

constexpr int kTables = 1000;
constexpr int kColumns = 6;

/// Draws one of these. A distribution of the standard library differs from system to system.
template <class Choices>
auto draw(std::mt19937& random, const Choices& from) {
    return from[random() % from.size()];
}

int drawBelow(std::mt19937& random, unsigned limit) { return static_cast<int>(random() % limit); }

/// Everything of a table that folding and sorting can change, a line for each row.
std::string describe(const Ptr<TableCommandInput>& table) {
    std::string text;
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column <= table->numberOfColumns(); ++column) {
            const Ptr<CommandInput> cell = table->getInputAtPosition(row, column);
            const Ptr<BoolValueCommandInput> button = cell;
            const Ptr<StringValueCommandInput> field = cell;
            text += cell ? cell->id() + (cell->isVisible() ? "+" : "-") : "none";
            text += button ? button->resourceFolder() : field ? field->value() : "";
            text += " | ";
        }
        text += "\n";
    }
    return text;
}

/// What `act` throws, empty for nothing.
std::string thrownBy(const std::function<void()>& act) {
    try {
        act();
    } catch (const std::exception& error) {
        return std::string("thrown: ") + error.what();
    }
    return "";
}

class RandomTables : public AddinTest {
protected:
    /// Makes two equal tables of this id; `fill` makes one of them from the generator's state.
    void show(const std::string& id, std::mt19937& random,
              const std::function<void(std::mt19937&, const Ptr<CommandInputs>&,
                                       const Ptr<TableCommandInput>&)>& fill) {
        SyntheticDialog dialog("Synthetic" + std::to_string(shown_++),
                               [&](const Ptr<CommandInputs>& inputs) {
                                   std::mt19937 again = random;
                                   product = inputs->addTableCommandInput(id, "", kColumns, "");
                                   fill(random, inputs, product);
                                   expected = inputs->addTableCommandInput(id, "", kColumns, "");
                                   fill(again, inputs, expected);
                               });
        dialog.open();
    }

    Ptr<TableCommandInput> product;
    Ptr<TableCommandInput> expected;

private:
    int shown_ = 0;
};

/// A position for a row: most lie below one that is there already.
std::string drawPosition(std::mt19937& random, std::vector<std::string>& positions) {
    const std::array<const char*, 4> indents = {"", "", "_", "` -|"};
    std::string position = std::to_string(drawBelow(random, 12));
    if (!positions.empty() && random() % 4 != 0) {
        position = draw(random, positions) + "." + std::to_string(drawBelow(random, 3));
    }
    if (random() % 8 == 0 && !positions.empty()) {
        position = draw(random, positions);
    }
    positions.push_back(position);
    return draw(random, indents) + position;
}

void fillTree(std::mt19937& random, const Ptr<CommandInputs>& inputs,
              const Ptr<TableCommandInput>& table) {
    const std::array<const char*, 3> icons = {
        "././Resources/BOM/ColapseAsm", "././Resources/BOM/UnColapseAsm", "././Resources/BOM/Part"};
    const std::array<const char*, 2> graphs = {"", "x"};
    std::vector<std::string> positions;
    const int rows = 2 + drawBelow(random, 12);
    for (int row = 0; row < rows; ++row) {
        const std::string number = std::to_string(row);
        const auto place = [&](const Ptr<CommandInput>& cell, int column) {
            cell->isVisible(random() % 2 == 0);
            table->addCommandInput(cell, row, column);
        };
        const char* icon = draw(random, icons);
        place(inputs->addBoolValueInput("t_" + number, "", false, icon, random() % 2 == 0), 0);
        const std::string position = drawPosition(random, positions);
        place(inputs->addStringValueInput("p_" + number, "", position), 1);
        place(inputs->addStringValueInput("g_" + number, "", draw(random, graphs)), 2);
        for (int column = 3; column <= kColumns; ++column) {
            place(inputs->addStringValueInput("c_" + number, ""), column);
        }
    }
}

TEST_F(RandomTables, FoldLikeTheReference) {
    std::mt19937 random(20);
    const std::array<const char*, 3> ids = {"QEMA_bom_models", "QEMA_bom_structure", "other"};
    for (int i = 0; i < kTables; ++i) {
        show(draw(random, ids), random, fillTree);
        const int row = drawBelow(random, 8);
        const bool showChildren = random() % 2 == 0;
        const std::string before = describe(product);

        tarnix::collapseRows(product, row, showChildren);
        reference::collapseRows(expected, row, showChildren);

        ASSERT_EQ(describe(product), describe(expected))
            << "table " << i << ", row " << row << (showChildren ? " shown" : " hidden") << " in\n"
            << before;
    }
}

/// A cell of the property column: mostly a field, sometimes of another kind.
Ptr<CommandInput> drawProperty(std::mt19937& random, const Ptr<CommandInputs>& inputs,
                               const std::string& id, bool numbers) {
    const std::array<const char*, 12> texts = {"1",    "10",  "9",    "1.2.1", "1.2.2", " 3 mm",
                                               "0x1A", "nan", "-inf", "0",     "+5",    "1e400"};
    const std::array<const char*, 6> others = {"", "red", "Red", "b", "10", "."};
    if (random() % 12 == 0) {
        return inputs->addImageCommandInput(id, "", "x.png");
    }
    if (random() % 12 == 0) {
        const Ptr<DropDownCommandInput> dropDown =
            inputs->addDropDownCommandInput(id, "", TextListDropDownStyle);
        dropDown->listItems()->add("7", random() % 4 != 0);
        return dropDown;
    }
    const bool isNumber = numbers ? random() % 40 != 0 : random() % 2 == 0;
    return inputs->addStringValueInput(id, "",
                                       isNumber ? draw(random, texts) : draw(random, others));
}

void fillParts(std::mt19937& random, const Ptr<CommandInputs>& inputs,
               const Ptr<TableCommandInput>& table) {
    const std::array<const char*, 7> names = {"icon",      "line", "graph", "partNumber",
                                              "structure", "size", "colour"};
    const std::array<const char*, 4> numbers = {"B", "a", "A", "AB"};
    const bool onlyNumbers = random() % 3 != 0;
    const int rows = 1 + drawBelow(random, 14);
    for (int column = 0; column <= kColumns; ++column) {
        table->addCommandInput(
            inputs->addBoolValueInput(
                names.at(static_cast<std::size_t>(column)) + std::string("_0"), "", false),
            0, column);
    }
    for (int row = 1; row < rows; ++row) {
        const std::string tail = "_" + std::to_string(row);
        table->addCommandInput(inputs->addImageCommandInput("icon" + tail, "", "x.png"), row, 0);
        table->addCommandInput(
            inputs->addBoolValueInput("line" + tail, std::to_string(rows - row), false), row, 1);
        table->addCommandInput(inputs->addStringValueInput("graph" + tail, ""), row, 2);
        table->addCommandInput(
            inputs->addStringValueInput("partNumber" + tail, "", draw(random, numbers)), row, 3);
        table->addCommandInput(inputs->addStringValueInput("structure" + tail, "", "Buy"), row, 4);
        table->addCommandInput(drawProperty(random, inputs, "size" + tail, onlyNumbers), row, 5);
        table->addCommandInput(drawProperty(random, inputs, "colour" + tail, onlyNumbers), row, 6);
    }
}

TEST_F(RandomTables, SortLikeTheReference) {
    std::mt19937 random(4);
    const std::array<const char*, 4> orders = {"Ascending", "Descending", "Ascending", "Sideways"};
    for (int i = 0; i < kTables; ++i) {
        show("QEMA_bom_structure", random, fillParts);
        const int column = drawBelow(random, kColumns + 1);
        const std::string order = draw(random, orders);
        const std::string before = describe(product);

        const std::string thrownByProduct = thrownBy([&] {
            tarnix::sortStructureTable(product, product->getInputAtPosition(0, column), order);
        });
        const std::string thrownByReference = thrownBy([&] {
            reference::sortStructureTable(expected, expected->getInputAtPosition(0, column), order);
        });

        ASSERT_EQ(thrownByProduct, thrownByReference) << before;
        ASSERT_EQ(describe(product), describe(expected))
            << "table " << i << ", column " << column << " " << order << " in\n"
            << before;
    }
}

}  // namespace
}  // namespace test_support
