#include "tests/tarnix/bom/behaviour/reference_folding.h"

#include <algorithm>
#include <string>

namespace reference {

using namespace adsk::core;

namespace {

std::string positionOf(const Ptr<TableCommandInput>& table, int row) {
    const Ptr<CommandInput> cell = table->getInputAtPosition(row, 1);
    const Ptr<StringValueCommandInput> field = cell;
    const Ptr<BoolValueCommandInput> button = cell;
    std::string text = field ? field->value() : button->name();
    while (!text.empty() && std::string("` _-|").find(text.front()) != std::string::npos) {
        text.erase(0, 1);
    }
    return text;
}

long depthOf(const std::string& position) {
    return std::count(position.begin(), position.end(), '.');
}

/// `text` up to its `n`-th point, counted from 1.
std::string upToPoint(const std::string& text, long n) {
    std::size_t at = 0;
    for (long i = 0; i < n; ++i) {
        at = text.find('.', i == 0 ? 0 : at + 1);
    }
    return text.substr(0, at);
}

void setRowVisible(const Ptr<TableCommandInput>& table, int row, bool visible) {
    const Ptr<BoolValueCommandInput> toggle = table->getInputAtPosition(row, 0);
    if (toggle->resourceFolder().find("/BOM/Part") == std::string::npos) {
        toggle->resourceFolder(toggle->value() ? "././Resources/BOM/ColapseAsm"
                                               : "././Resources/BOM/UnColapseAsm");
    }
    if (table->id() == "QEMA_bom_models" || table->id() == "QEMA_bom_structure") {
        for (int c = 0; c <= table->numberOfColumns() - 1; ++c) {
            table->getInputAtPosition(row, c == 0 ? 0 : c + 1)->isVisible(visible);
        }
    }
}

void touch(const Ptr<TableCommandInput>& table, int row, const std::string& position,
           bool showChildren) {
    const Ptr<BoolValueCommandInput> toggle = table->getInputAtPosition(row, 0);
    if (toggle->resourceFolder().find("Asm") != std::string::npos) {
        toggle->resourceFolder(showChildren ? "././Resources/BOM/UnColapseAsm"
                                            : "././Resources/BOM/ColapseAsm");
    }
    const Ptr<StringValueCommandInput> graph = table->getInputAtPosition(row, 2);
    if (!showChildren && position.find('.') == std::string::npos) {
        graph->value("");
    }
    if (showChildren && graph->value().empty()) {
        graph->value("\xE2\x96\x91");
    }
}

}  // namespace

void collapseRows(const Ptr<TableCommandInput>& table, int row, bool showChildren) {
    if (row < 1 || row >= table->rowCount()) {
        return;
    }
    const std::string p = positionOf(table, row);
    for (int later = row + 1; later < table->rowCount(); ++later) {
        const std::string q = positionOf(table, later);
        if (showChildren && depthOf(q) - depthOf(p) >= 2) {
            continue;
        }
        const std::string ancestor = depthOf(p) < depthOf(q) ? upToPoint(q, depthOf(p) + 1) : q;
        if (ancestor != p) {
            continue;
        }
        touch(table, row, p, showChildren);
        setRowVisible(table, later, showChildren);
        if (showChildren) {
            const Ptr<BoolValueCommandInput> toggle = table->getInputAtPosition(later, 0);
            collapseRows(table, later, toggle->value());
        }
    }
}

}  // namespace reference
