#include "tests/tarnix/bom/whole_dialog/refused_call.h"

#include <iterator>
#include <set>
#include <utility>

namespace test_support {
namespace {

/// What an accepted dialog does by the rules is only a part of its calls: it opens again. What
/// comes first of these on the tab "Data of Model" is that part.
bool isRuledOnAccept(const CallsOfAction& calls, const std::string& name, int nth) {
    static const std::set<std::string> any = {
        "Application::get",       "Application::activeProduct", "Design::rootComponent",
        "Command::commandInputs", "CommandEventArgs::command",  "Attributes::add"};
    static const std::set<std::string> onModel = {
        "OccurrenceList::count",    "OccurrenceList::item",
        "Occurrence::component",    "Occurrence::childOccurrences",
        "Attributes::itemsByGroup", "Attribute::name",
        "Attribute::value",         "Component::partNumber",
        "Component::name",          "Component::description"};
    const auto said = calls.said.find(name);
    if (said == calls.said.end() || nth > said->second) return false;
    return any.contains(name) || (calls.kind == "accept model" && onModel.contains(name));
}

bool isRuled(const CallsOfAction& calls, const std::string& name, int nth) {
    if (calls.kind.starts_with("accept")) return isRuledOnAccept(calls, name, nth);
    const auto said = calls.said.find(name);
    return said != calls.said.end() &&
           static_cast<std::uint64_t>(said->second) == calls.made.at(name);
}

using Made = std::map<std::string, std::uint64_t>;

/// Each name is as likely as the others, and then each of its calls.
std::pair<std::string, int> callByName(const Made& made, std::mt19937& random) {
    const auto name = std::next(made.begin(), static_cast<long>(random() % made.size()));
    return {name->first, static_cast<int>(random() % name->second) + 1};
}

/// Each call is as likely as the others.
std::pair<std::string, int> anyCall(const Made& made, std::mt19937& random) {
    std::uint64_t total = 0;
    for (const auto& [name, count] : made) total += count;
    std::uint64_t left = random() % total;
    auto name = made.begin();
    for (; left >= name->second; ++name) left -= name->second;
    return {name->first, static_cast<int>(left) + 1};
}

/// The calls that are not the walk's, all of them where there are no others.
Made callsOnDialog(const Made& made) {
    Made others;
    for (const auto& [name, count] : made) {
        const bool isOfWalk = name.starts_with("Occurrence") || name.starts_with("Component::") ||
                              name.starts_with("Attribute");
        if (!isOfWalk) others.emplace(name, count);
    }
    return others.empty() ? made : others;
}

/// The walk makes most of the calls, and is left out in a part of the picks.
std::pair<std::string, int> pickCall(const Made& made, std::mt19937& random) {
    switch (random() % 4) {
        case 0:
            return callByName(made, random);
        case 1:
            return anyCall(made, random);
        case 2:
            return callByName(callsOnDialog(made), random);
        default:
            return anyCall(callsOnDialog(made), random);
    }
}

}  // namespace

std::optional<Refusal> pickRefusal(const std::vector<CallsOfAction>& actions,
                                   std::mt19937& random) {
    std::vector<std::size_t> withCalls;
    for (std::size_t i = 0; i < actions.size(); ++i) {
        if (!actions[i].made.empty()) withCalls.push_back(i);
    }
    if (withCalls.empty()) return std::nullopt;
    Refusal refusal;
    refusal.action = withCalls[random() % withCalls.size()];
    const auto& made = actions[refusal.action].made;
    const auto [name, nth] = pickCall(made, random);
    refusal.name = name;
    refusal.nth = nth;
    refusal.isRuled = isRuled(actions[refusal.action], name, nth);
    return refusal;
}

}  // namespace test_support
