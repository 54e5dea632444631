#include "workbench/dialogs/bom_dialog.h"

#include "tests/support/addin_test.h"

#include "host/session/input_actions.h"
#include "host/session/table_view.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>

/// The tree expanded at once, compared with the clicks that it stands for.
namespace {

using namespace adsk::core;

class ExpandTree : public test_support::AddinTest {
protected:
    /// Clicks the toggles of visible assemblies above a level, from top to bottom.
    void clickToggles(int levels) {
        const Ptr<TableCommandInput> table = shownTableInput();
        const int count = table->rowCount();
        for (int row = 1; row < count; ++row) {
            const std::string position = host::readCell(table, row, 1).text;
            const auto level = 1 + std::ranges::count(position, '.');
            const bool isAssembly =
                host::readCell(table, row, 0).picture.find("Asm") != std::string::npos;
            const Ptr<CommandInput> toggle = table->getInputAtPosition(row, 0);
            if (level < levels && isAssembly && toggle->isVisible()) {
                host::click(toggle);
            }
        }
    }

    /// What the table shows, and the export, after the tree was expanded.
    template <class Expand>
    std::string shownAfter(const std::string& outline, const Expand& expand) {
        restart(test_support::addinOptions());
        EXPECT_TRUE(run());
        configure({"QEMA_Mass;Mass"});
        open(outline);
        showModel();
        expand();
        const std::string shown = shownTable();
        exportBom();
        return shown + csv();
    }

    void expectSame(const std::string& outline, int levels) {
        EXPECT_EQ(
            shownAfter(outline,
                       [&] { workbench::expandTree(*session, workbench::kModelTab, levels); }),
            shownAfter(outline, [&] { clickToggles(levels); }))
            << outline << "\nlevels: " << levels;
    }
};

/// A line for each occurrence, each at most one level below the one above it.
std::string randomOutline(std::mt19937& random) {
    std::string outline;
    std::size_t depth = 0;
    for (int line = 0; line < 15; ++line) {
        outline += "\n" + std::string(2 * depth, ' ') + "Part" + std::to_string(line);
        depth = std::min<std::size_t>(random() % (depth + 2), 5);
    }
    return outline;
}

}  // namespace

TEST_F(ExpandTree, ShowsWhatClicksShow) {
    constexpr const char* kTree = R"(
        Frame
          Leg assembly
            Foot
          Brace
        Bolt
        Drive
          Nut)";
    for (const int levels : {1, 2, 3, std::numeric_limits<int>::max()}) {
        expectSame(kTree, levels);
    }
}

TEST_F(ExpandTree, ShowsWhatClicksShowInRandomTrees) {
    std::mt19937 random(20261122);
    for (int tree = 0; tree < 25; ++tree) {
        expectSame(randomOutline(random), 2 + tree % 4);
    }
}
