#include "host/session/dialog_inputs.h"

#include "host/session/session_error.h"

#include <algorithm>
#include <cstddef>
#include <unordered_set>

namespace host {
namespace {

using namespace adsk::core;

Ptr<CommandInputs> childrenOf(const Ptr<CommandInput>& input) {
    if (const Ptr<TabCommandInput> tab = input) {
        return tab->children();
    }
    const Ptr<GroupCommandInput> group = input;
    return group ? group->children() : nullptr;
}

Ptr<CommandInputs> activePage(const Ptr<CommandInputs>& inputs) {
    for (std::size_t i = 0; i < inputs->count(); ++i) {
        const Ptr<TabCommandInput> tab = inputs->item(i);
        if (tab && tab->isActive()) {
            return tab->children();
        }
    }
    return nullptr;
}

struct Ids {
    std::vector<std::string> inOrder;
    std::unordered_set<std::string> known;

    void add(const std::string& id) {
        if (!id.empty() && known.insert(id).second) {
            inOrder.push_back(id);
        }
    }
};

void collect(Ids& ids, const Ptr<CommandInputs>& inputs) {
    for (std::size_t i = 0; i < inputs->count(); ++i) {
        const Ptr<CommandInput> input = inputs->item(i);
        ids.add(input->id());
        if (const Ptr<CommandInputs> children = childrenOf(input)) {
            collect(ids, children);
        }
    }
}

std::string listed(const std::vector<std::string>& ids) {
    constexpr std::size_t kShown = 40;
    std::string result;
    for (std::size_t i = 0; i < std::min(ids.size(), kShown); ++i) {
        result += (result.empty() ? "" : ", ") + ids[i];
    }
    const std::size_t more = ids.size() - std::min(ids.size(), kShown);
    return more == 0 ? result : result + " and " + std::to_string(more) + " more";
}

}  // namespace

Ptr<CommandInput> findInput(const Ptr<Command>& dialog, const std::string& id) {
    const Ptr<CommandInputs> all = dialog->commandInputs();
    const Ptr<CommandInputs> page = activePage(all);
    Ptr<CommandInput> found = page ? page->itemById(id) : nullptr;
    if (!found) {
        found = all->itemById(id);
    }
    if (!found) {
        const std::vector<std::string> ids = inputIds(dialog);
        throw SessionError("the dialog has no input \"" + id + "\"; " +
                           (ids.empty() ? "it has none at all" : "it has " + listed(ids)));
    }
    return found;
}

std::vector<std::string> inputIds(const Ptr<Command>& dialog) {
    Ids ids;
    collect(ids, dialog->commandInputs());
    return ids.inOrder;
}

}  // namespace host
