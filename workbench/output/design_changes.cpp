#include "workbench/output/design_changes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>

namespace workbench {
namespace {

using Lines = std::vector<std::string>;

std::string inQuotes(const std::string& text) { return "\"" + text + "\""; }

std::string becomes(const std::string& what, const std::string& before, const std::string& after) {
    return what + " " + inQuotes(before) + " is now " + inQuotes(after);
}

void addTextChange(Lines& lines, const std::string& what, const std::string& before,
                   const std::string& after) {
    if (before != after) {
        lines.push_back(becomes(what, before, after));
    }
}

const host::AttributeData* find(const std::vector<host::AttributeData>& all,
                                const host::AttributeData& wanted) {
    const auto found = std::ranges::find_if(all, [&](const host::AttributeData& each) {
        return each.group == wanted.group && each.name == wanted.name;
    });
    return found == all.end() ? nullptr : &*found;
}

void addAttributes(Lines& lines, const std::string& owner,
                   const std::vector<host::AttributeData>& before,
                   const std::vector<host::AttributeData>& after) {
    for (const host::AttributeData& each : after) {
        const std::string what = owner + ": attribute " + each.group + "/" + each.name;
        const host::AttributeData* old = find(before, each);
        if (old == nullptr) {
            lines.push_back(what + " " + inQuotes(each.value) + " is new");
        } else {
            addTextChange(lines, what, old->value, each.value);
        }
    }
    for (const host::AttributeData& each : before) {
        if (find(after, each) == nullptr) {
            lines.push_back(owner + ": attribute " + each.group + "/" + each.name + " is gone");
        }
    }
}

using Place = std::array<double, 3>;

/// Where an occurrence is, in cm.
Place origin(const host::Transform& placed) {
    return {placed.cells[3], placed.cells[7], placed.cells[11]};
}

/// A number with a point, whatever the user's language; in full as far as it takes to read the
/// same number again.
std::string number(double value, bool inFull) {
    constexpr int kPlaceDigits = 6;
    std::array<char, 32> text = {};
    char* const last = text.data() + text.size();
    const auto end =
        inFull ? std::to_chars(text.data(), last, value)
               : std::to_chars(text.data(), last, value, std::chars_format::general, kPlaceDigits);
    return {text.data(), end.ptr};
}

std::string coordinates(const Place& place, bool inFull) {
    return number(place[0], inFull) + ", " + number(place[1], inFull) + ", " +
           number(place[2], inFull);
}

std::string moved(const Place& before, const Place& after) {
    const bool inFull =
        coordinates(before, /*inFull=*/false) == coordinates(after, /*inFull=*/false);
    return " is now at " + coordinates(after, inFull) + " cm, and was at " +
           coordinates(before, inFull);
}

/// Whether they differ in more than the place.
bool differInTurn(host::Transform before, const host::Transform& after) {
    for (const std::size_t cell : {3U, 7U, 11U}) {
        before.cells[cell] = after.cells[cell];
    }
    return before != after;
}

void addPlacement(Lines& lines, const std::string& what, const host::OccurrenceData& before,
                  const host::OccurrenceData& after) {
    const Place from = origin(before.transform);
    const Place to = origin(after.transform);
    if (from != to) {
        lines.push_back(what + moved(from, to));
    }
    if (differInTurn(before.transform, after.transform)) {
        lines.push_back(what + " is turned");
    }
    if (before.grounded != after.grounded) {
        lines.push_back(what + (after.grounded ? " is grounded" : " is no longer grounded"));
    }
}

std::string componentName(const host::DesignData& design, std::size_t component) {
    return component < design.components.size() ? design.components[component].name : "";
}

std::string labelOf(const host::DesignData& design, const host::OccurrenceData& occurrence,
                    std::size_t parent) {
    return "occurrence " +
           inQuotes(componentName(design, occurrence.component) + ":" +
                    std::to_string(occurrence.instance)) +
           " in " + inQuotes(componentName(design, parent));
}

void addChildren(Lines& lines, const host::DesignData& before, const host::DesignData& after,
                 std::size_t component) {
    const auto& old = before.components[component].children;
    const auto& now = after.components[component].children;
    for (std::size_t i = 0; i < std::min(old.size(), now.size()); ++i) {
        addPlacement(lines, labelOf(after, now[i], component), old[i], now[i]);
    }
    for (std::size_t i = old.size(); i < now.size(); ++i) {
        lines.push_back(labelOf(after, now[i], component) + " is new");
    }
    for (std::size_t i = now.size(); i < old.size(); ++i) {
        lines.push_back(labelOf(before, old[i], component) + " is gone");
    }
}

std::string materialOf(const host::ComponentData& component) {
    return component.material ? component.material->name : "";
}

void addComponent(Lines& lines, const host::DesignData& before, const host::DesignData& after,
                  std::size_t component) {
    const host::ComponentData& old = before.components[component];
    const host::ComponentData& now = after.components[component];
    const std::string owner = "component " + inQuotes(old.name);
    addTextChange(lines, owner + ": name", old.name, now.name);
    addTextChange(lines, owner + ": part number", old.partNumber, now.partNumber);
    addTextChange(lines, owner + ": description", old.description, now.description);
    addTextChange(lines, owner + ": material", materialOf(old), materialOf(now));
    addAttributes(lines, owner, old.attributes, now.attributes);
    if (old.sketches != now.sketches) {
        lines.push_back(owner + ": its sketches are changed");
    }
    addChildren(lines, before, after, component);
}

}  // namespace

std::vector<std::string> changesBetween(const host::DesignData& before,
                                        const host::DesignData& after) {
    Lines lines;
    addAttributes(lines, "design", before.attributes, after.attributes);
    for (std::size_t i = 0; i < after.components.size(); ++i) {
        if (i < before.components.size()) {
            addComponent(lines, before, after, i);
        } else {
            lines.push_back("component " + inQuotes(after.components[i].name) + " is new");
        }
    }
    return lines;
}

}  // namespace workbench
