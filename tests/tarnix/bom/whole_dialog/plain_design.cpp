#include "tests/tarnix/bom/whole_dialog/plain_design.h"

#include <Core/CoreAll.h>

#include <algorithm>
#include <array>
#include <map>
#include <sstream>
#include <stdexcept>

namespace plain {
namespace {

namespace core = adsk::core;
namespace fusion = adsk::fusion;

const std::string kDifferent = "***different***";
constexpr const char* kGroup = "QEMA_PropertiesAttributesGroup";

Component readComponent(const core::Ptr<fusion::Component>& component) {
    Component read;
    read.name = component->name();
    read.number = component->partNumber();
    read.description = component->description();
    for (const auto& attribute : component->attributes()->itemsByGroup(kGroup)) {
        read.attributes.emplace_back(attribute->name(), attribute->value());
    }
    const auto physical = component->getPhysicalProperties(fusion::LowCalculationAccuracy);
    read.area = physical->area();
    read.density = physical->density();
    read.mass = physical->mass();
    read.volume = physical->volume();
    read.material = component->material() ? component->material()->name() : "";
    const auto low = component->boundingBox()->minPoint();
    const auto high = component->boundingBox()->maxPoint();
    read.extents = {high->x() - low->x(), high->y() - low->y(), high->z() - low->z()};
    return read;
}

class Reader {
public:
    explicit Reader(Design& design) : design_(design) {}

    std::vector<std::optional<Occurrence>> list(const core::Ptr<fusion::OccurrenceList>& list) {
        std::vector<std::optional<Occurrence>> all;
        for (std::size_t i = 0; i < list->count(); ++i) {
            const auto occurrence = list->item(i);
            all.push_back(occurrence ? std::optional(one(occurrence)) : std::nullopt);
        }
        return all;
    }

private:
    Occurrence one(const core::Ptr<fusion::Occurrence>& occurrence) {
        const auto component = occurrence->component();
        const auto [place, isNew] = places_.emplace(component->name(), places_.size());
        if (isNew) design_.components.push_back(readComponent(component));
        return {.component = place->second,
                .path = occurrence->fullPathName(),
                .mass = occurrence->physicalProperties()->mass(),
                .children = list(occurrence->childOccurrences())};
    }

    Design& design_;
    std::map<std::string, std::size_t> places_;
};

bool isModelKey(const std::string& key) {
    return key == "QEMA_Part Number" || key == "QEMA_Part Name" || key == "QEMA_Description";
}

std::string unlessRefused(Calls& calls, const char* name, const std::string& value) {
    return calls.refused(name) ? "" : value;
}

Properties propertiesOf(Calls& calls, const Component& component) {
    if (calls.refused("Component::attributes")) return {};
    Properties all = {
        {"QEMA_Part Number", unlessRefused(calls, "Component::partNumber", component.number)},
        {"QEMA_Part Name", unlessRefused(calls, "Component::name", component.name)},
        {"QEMA_Description",
         unlessRefused(calls, "Component::description", component.description)}};
    if (calls.refused("Attributes::itemsByGroup")) return all;
    for (const auto& [name, value] : component.attributes) {
        const std::string key = unlessRefused(calls, "Attribute::name", name);
        if (isModelKey(key)) continue;
        all.emplace_back(key, unlessRefused(calls, "Attribute::value", value));
    }
    return all;
}

void collectNames(std::vector<std::string>& names, const Properties& properties) {
    const std::array<const char*, 8> reserved = {
        "QEMA_Part Name", "QEMA_Part Number", "QEMA_Description", "Produce", "Buy",
        "AsPart",         "Divided",          "Reference"};
    for (const auto& [key, value] : properties) {
        if (std::find(reserved.begin(), reserved.end(), key) != reserved.end()) continue;
        if (key.size() < 5) throwStringPosition();
        const std::string name = key.substr(5);
        if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
    }
}

Row rowOf(Calls& calls, const Design& design, const Occurrence& occurrence, std::size_t index,
          int level) {
    Row row;
    calls.need("Occurrence::childOccurrences");
    calls.need("Occurrence::component");
    row.component = occurrence.component;
    row.occurrence = &occurrence;
    row.relativePosition = level < 2 ? "" : "." + std::to_string(index + 1);
    row.childCount = calls.refused("OccurrenceList::count") ? 0 : occurrence.children.size();
    row.pathName = occurrence.path;
    row.level = level;
    row.properties = propertiesOf(calls, design.components[occurrence.component]);
    return row;
}

using List = std::vector<std::optional<Occurrence>>;

/// Whether a list is longer, as its count says that is asked for each time.
bool goesOn(Calls& calls, const List& list, std::size_t index) {
    return !calls.refused("OccurrenceList::count") && index < list.size();
}

void walkList(Calls& calls, const Design& design, const List& list, int level, Rows& rows,
              std::vector<std::string>& userNames) {
    for (std::size_t i = 0; goesOn(calls, list, i); ++i) {
        if (calls.refused("OccurrenceList::item") || !list[i]) continue;
        const Row row = rowOf(calls, design, *list[i], i, level);
        collectNames(userNames, row.properties);
        rows.push_back(row);
        if (row.childCount == 0) continue;
        walkList(calls, design, list[i]->children, level + 1, rows, userNames);
        rows.back().pathName = "-1";
    }
}

void mergeProperties(Properties& target, const Properties& current) {
    const std::size_t length = target.size();
    for (std::size_t j = 0; j < length; ++j) {
        if (j < current.size() && current[j].second != target[j].second) {
            target[j].second = kDifferent;
        }
        if (j >= current.size() && !target[j].second.empty()) target[j].second = kDifferent;
    }
    for (std::size_t j = length; j < current.size(); ++j) {
        if (!current[j].second.empty()) target.emplace_back(current[j].first, kDifferent);
    }
}

std::string upTo(const std::string& text, char last) { return text.substr(0, text.rfind(last)); }

void merge(Design& design, Row& target, const Row& current) {
    target.quantity += 1;
    if (upTo(target.occurrence->path, ':') != upTo(current.occurrence->path, ':')) {
        target.combined = true;
    }
    std::string& description = design.components[target.component].description;
    const bool differs = design.components[current.component].description != description;
    if (differs && description.find(kDifferent) == std::string::npos) {
        description = kDifferent + description;
    }
    mergeProperties(target.properties, current.properties);
}

void walkListMerged(Calls& calls, Design& design, const List& list, int level, Rows& rows) {
    for (std::size_t i = 0; goesOn(calls, list, i); ++i) {
        if (calls.refused("OccurrenceList::item") || !list[i]) continue;
        const Row row = rowOf(calls, design, *list[i], i, level);
        std::vector<std::string> names;
        collectNames(names, row.properties);
        const int same = find(design, rows, row);
        if (same >= 0) merge(design, at(rows, same), row);
        rows.push_back(row);
        if (row.childCount == 0) continue;
        walkListMerged(calls, design, list[i]->children, level + 1, rows);
        rows.back().pathName = "-1";
    }
}

}  // namespace

void throwNullHandle() { throw Thrown{"std::exception", ""}; }
void throwSubscript() { throw Thrown{"std::out_of_range", "invalid vector subscript"}; }
void throwStringPosition() { throw Thrown{"std::out_of_range", "invalid string position"}; }

bool Calls::refused(const std::string& name) {
    return ++counts_[name] == refusedCall_ && name == refusedName_;
}

void Calls::need(const std::string& name) {
    if (refused(name)) throwNullHandle();
}

void Calls::begin(std::string name, int nth) {
    refusedName_ = std::move(name);
    refusedCall_ = nth;
    counts_.clear();
}

int Calls::count(const std::string& name) const {
    const auto found = counts_.find(name);
    return found == counts_.end() ? 0 : found->second;
}

int integerOf(const std::string& text) {
    try {
        return std::stoi(text);
    } catch (const std::invalid_argument&) {
        throw Thrown{"std::invalid_argument", "invalid stoi argument"};
    } catch (const std::out_of_range&) {
        throw Thrown{"std::out_of_range", "stoi argument out of range"};
    }
}

double numberOf(const std::string& text) {
    try {
        return std::stod(text);
    } catch (const std::invalid_argument&) {
        throw Thrown{"std::invalid_argument", "invalid stod argument"};
    } catch (const std::out_of_range&) {
        throw Thrown{"std::out_of_range", "stod argument out of range"};
    }
}

std::string tailOf(const std::string& id) { return id.substr(id.rfind('_') + 1); }
std::string baseOf(const std::string& id) { return id.substr(0, id.rfind('_')); }

std::string fixed(double value, int decimals) {
    std::ostringstream out;
    out.precision(decimals);
    out << std::fixed << value;
    return out.str();
}

Design read(const core::Ptr<fusion::Component>& root) {
    Design design;
    design.top = Reader(design).list(root->occurrences()->asList());
    return design;
}

std::string describe(const Design& design) {
    std::string text;
    for (const Component& component : design.components) {
        text += component.name + " | " + component.number + " | " + component.description;
        for (const auto& [name, value] : component.attributes) text += " | " + name + "=" + value;
        text += "\n";
    }
    return text;
}

Rows walk(Calls& calls, const Design& design, std::vector<std::string>& userNames) {
    Rows rows;
    calls.need("Component::occurrences");
    if (calls.refused("Occurrences::asList")) return rows;
    walkList(calls, design, design.top, 1, rows, userNames);
    return rows;
}

Rows walkMerged(Calls& calls, Design& design) {
    Rows rows;
    calls.need("Component::occurrences");
    calls.need("Occurrences::asList");
    walkListMerged(calls, design, design.top, 1, rows);
    return rows;
}

int find(const Design& design, const Rows& rows, const Row& row) {
    const std::string& path = row.occurrence->path;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (design.components[rows[i].component].number !=
            design.components[row.component].number) {
            continue;
        }
        const std::string& other = rows[i].occurrence->path;
        const bool bothAtTop =
            path.find('+') == std::string::npos && other.find('+') == std::string::npos;
        if (bothAtTop || upTo(path, '+') == upTo(other, '+')) return static_cast<int>(i);
    }
    return -1;
}

bool isSet(const Row& row, const std::string& key) {
    return std::find(row.properties.begin(), row.properties.end(),
                     std::pair<std::string, std::string>(key, "1")) != row.properties.end();
}

std::string firstSet(const Row& row) {
    for (const auto& [key, value] : row.properties) {
        if (value == "1") return key;
    }
    return "";
}

std::string cellText(const Design& design, const Row& row, const std::string& key) {
    const Component& component = design.components[row.component];
    const std::string name = key.substr(5);
    if (name == "Quantity") return std::to_string(row.quantity);
    if (name == "Part Name") return component.name;
    if (name == "Description") return component.description;
    if (name == "Area") return fixed(component.area, 2);
    if (name == "Density") return fixed(component.density * 1000000, 2);
    if (name == "Mass") return fixed(component.mass, 3);
    if (name == "Volume") return fixed(component.volume, 3);
    if (name == "Physical Material") return component.material;
    const auto extent = [&](std::size_t axis) { return fixed(component.extents[axis] * 10, 1); };
    if (name == "Length") return extent(0);
    if (name == "Width") return extent(1);
    if (name == "Height") return extent(2);
    if (name == "Bounding Box") return extent(0) + " x " + extent(1) + " x " + extent(2);
    std::string text;
    for (const auto& [entry, value] : row.properties) {
        if (entry == key) text = value;
    }
    return text;
}

}  // namespace plain
