#include "host/ui/inputs/reachability.h"

#include "host/ui/commands/command_object.h"
#include "host/ui/inputs/group_command_input_object.h"
#include "host/ui/inputs/table_command_input_object.h"

#include <algorithm>

namespace host::ui {
namespace {

std::string whyHiddenBy(const InputState& holder) {
    if (holder.kind == InputKind::Tab && holder.command()->activeTab() != &holder) {
        return "its tab " + describe(holder) + " is not active: activate it first";
    }
    if (holder.kind == InputKind::Group &&
        !static_cast<const GroupCommandInputObject&>(holder).state().expanded) {
        return "its group " + describe(holder) + " is collapsed: click it first";
    }
    return {};
}

std::string whyHiddenInTable(const InputState& input) {
    const TableCommandInputObject& table = *input.inLine->table;
    if (table.isToolbar(*input.inLine)) return {};
    const std::vector<int> shown = table.shownColumns();
    if (std::find(shown.begin(), shown.end(), input.inColumn) == shown.end()) {
        return "its column " + std::to_string(input.inColumn) + " of the table " + describe(table) +
               " has no width";
    }
    return {};
}

}  // namespace

std::string describe(const InputState& input) {
    if (!input.id().empty() || input.inLine == nullptr) return "\"" + input.id() + "\"";
    return "in column " + std::to_string(input.inColumn) + " of " + describe(*input.inLine->table);
}

std::string whyUnreachable(const InputState& input) {
    if (input.command() == nullptr || !input.command()->isOpen()) {
        return "it is not part of the open dialog";
    }
    for (const InputState* each = &input; each != nullptr; each = each->parent()) {
        if (!each->visible) {
            return each == &input ? "it is not visible" : describe(*each) + " is not visible";
        }
        std::string why = each->inLine != nullptr ? whyHiddenInTable(*each)
                          : each == &input        ? ""
                                                  : whyHiddenBy(*each);
        if (!why.empty()) return why;
    }
    return {};
}

}  // namespace host::ui
