#include "workbench/serve/changes.h"

#include <utility>

namespace workbench::serve {
namespace {

Json replacement(const std::string& section, const Json& value) {
    return {{"op", "replace"}, {"path", "/" + section}, {"value", value}};
}

/// Comparing two long lists entry by entry gives as many operations as there are entries.
bool isLongList(const Json& value) {
    constexpr std::size_t kLong = 64;
    return value.is_array() && value.size() > kLong;
}

void addChanges(Json& patch, const std::string& section, const Json& before, const Json& after) {
    if (before.type() != after.type() || isLongList(before) || isLongList(after)) {
        patch.push_back(replacement(section, after));
        return;
    }
    Json changes = Json::diff(before, after, "/" + section);
    Json whole = replacement(section, after);
    if (changes.size() > 1 && textOf(changes).size() > textOf(whole).size()) {
        patch.push_back(std::move(whole));
        return;
    }
    for (Json& each : changes) {
        patch.push_back(std::move(each));
    }
}

}  // namespace

Json documentOf(const State& state) {
    Json document = Json::object();
    for (const auto& [name, value] : state.sections) {
        document[name] = *value;
    }
    return document;
}

Json patchBetween(const State& before, const State& after) {
    Json patch = Json::array();
    for (const auto& [name, value] : after.sections) {
        const auto old = before.sections.find(name);
        if (old == before.sections.end()) {
            patch.push_back({{"op", "add"}, {"path", "/" + name}, {"value", *value}});
        } else if (old->second != value && *old->second != *value) {
            addChanges(patch, name, *old->second, *value);
        }
    }
    return patch;
}

bool update(Sections& sections, std::map<std::string, Json> fresh) {
    bool changed = false;
    for (auto& [name, value] : fresh) {
        std::shared_ptr<const Json>& kept = sections[name];
        if (!kept || *kept != value) {
            kept = std::make_shared<const Json>(std::move(value));
            changed = true;
        }
    }
    return changed;
}

}  // namespace workbench::serve
