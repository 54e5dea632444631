#include "parts/item_tree.h"

#include <algorithm>
#include <limits>
#include <unordered_map>
#include <utility>

namespace parts {
namespace {

/// Lines in the order in which their components come, each component once.
class LineCollector {
public:
    void add(std::size_t component, std::int64_t quantity, const std::string& place) {
        const auto [found, isNew] = indexOf_.try_emplace(component, lines_.size());
        if (isNew) {
            lines_.push_back({.component = component, .quantity = quantity, .place = place});
        } else {
            lines_[found->second].quantity += quantity;
        }
    }

    std::vector<Line> take() { return std::move(lines_); }

private:
    std::vector<Line> lines_;
    std::unordered_map<std::size_t, std::size_t> indexOf_;
};

/// What is directly in a component, each component once, as the design has it.
std::vector<Line> childrenOf(const host::DesignData& design, std::size_t component) {
    LineCollector collector;
    for (const host::OccurrenceData& child : design.components[component].children) {
        if (!child.absent) {
            collector.add(
                child.component, 1,
                design.components[child.component].name + ":" + std::to_string(child.instance));
        }
    }
    return collector.take();
}

/// Visits components depth first, each once.
class Discovery {
public:
    Discovery(const ItemTree& tree, std::size_t components) : tree_(tree), seen_(components) {}

    void visit(std::size_t component) {
        seen_[component] = true;
        discovered.push_back(component);
        if (tree_.isOpened(component)) {
            const std::vector<Line>& lines = tree_.lines(component);
            for (std::size_t line = 0; line < lines.size(); ++line) {
                if (!seen_[lines[line].component]) {
                    places.emplace_back(lines[line].component,
                                        FirstPlace{.parent = component, .line = line});
                    visit(lines[line].component);
                }
            }
        }
        childrenFirst.push_back(component);
    }

    std::vector<std::size_t> discovered;
    std::vector<std::size_t> childrenFirst;
    std::vector<std::pair<std::size_t, FirstPlace>> places;

private:
    const ItemTree& tree_;
    std::vector<bool> seen_;
};

}  // namespace

ItemTree::ItemTree(const host::DesignData& design, Opening opening)
    : design_(design),
      opening_(opening),
      insides_(design.components.size()),
      quantities_(design.components.size()),
      levels_(design.components.size(), std::numeric_limits<int>::max()),
      firstPlaces_(design.components.size()) {
    structures_.reserve(design.components.size());
    for (const host::ComponentData& component : design.components) {
        structures_.push_back(structureOf(component));
    }
    for (std::size_t component = 0; component < design.components.size(); ++component) {
        findInside(component);
    }
    discover();
    countQuantities();
    findDivided();
}

const std::vector<Line>& ItemTree::lines(std::size_t component) const {
    return insides_[component].lines;
}

bool ItemTree::isOpened(std::size_t component) const {
    if (component == 0) {
        return true;
    }
    return opening_ == Opening::Produce && structures_[component] == BomStructure::Produce &&
           !insides_[component].lines.empty();
}

std::string ItemTree::path(std::size_t component) const {
    std::string path;
    for (std::optional<FirstPlace> place = firstPlaces_[component]; place;
         place = firstPlaces_[place->parent]) {
        path = lines(place->parent)[place->line].place + (path.empty() ? "" : "+") + path;
    }
    return path;
}

const ItemTree::Inside& ItemTree::findInside(std::size_t component) {
    Inside& inside = insides_[component];
    if (std::exchange(inside.isKnown, true)) {
        return inside;
    }
    LineCollector lines;
    for (const Line& child : childrenOf(design_, component)) {
        if (structures_[child.component] == BomStructure::Divided) {
            for (const Line& line : findInside(child.component).lines) {
                lines.add(line.component, child.quantity * line.quantity,
                          child.place + "+" + line.place);
            }
        } else if (structures_[child.component] != BomStructure::Reference) {
            lines.add(child.component, child.quantity, child.place);
        }
    }
    inside.lines = lines.take();
    return inside;
}

void ItemTree::discover() {
    Discovery discovery(*this, design_.components.size());
    discovery.visit(0);
    reached_ = std::move(discovery.discovered);
    parentsFirst_ = std::move(discovery.childrenFirst);
    std::ranges::reverse(parentsFirst_);
    for (const auto& [component, place] : discovery.places) {
        firstPlaces_[component] = place;
    }
}

void ItemTree::countQuantities() {
    quantities_[0] = 1;
    levels_[0] = 0;
    for (const std::size_t component : parentsFirst_) {
        if (!isOpened(component)) {
            continue;
        }
        for (const Line& line : lines(component)) {
            quantities_[line.component] += quantities_[component] * line.quantity;
            levels_[line.component] = std::min(levels_[line.component], levels_[component] + 1);
        }
    }
}

void ItemTree::findDivided() {
    std::vector<bool> seen(structures_.size());
    std::vector<std::size_t> toVisit = {0};
    seen[0] = true;
    while (!toVisit.empty()) {
        const std::size_t component = toVisit.back();
        toVisit.pop_back();
        if (component != 0 && structures_[component] == BomStructure::Divided) {
            divided_.push_back(component);
        }
        for (const host::OccurrenceData& child : design_.components[component].children) {
            if (!child.absent && structures_[child.component] != BomStructure::Reference &&
                !seen[child.component]) {
                seen[child.component] = true;
                toVisit.push_back(child.component);
            }
        }
    }
    std::ranges::sort(divided_);
}

}  // namespace parts
