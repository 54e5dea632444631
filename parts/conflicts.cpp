#include "parts/conflicts.h"

#include "parts/natural_order.h"
#include "parts/number_text.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>

namespace parts {
namespace {

// Of masses that are the same part's in two files or by two modellers.
constexpr double kSameMassWithin = 1e-3;

using Group = std::vector<std::size_t>;
using Texts = std::set<std::string, NaturalLess>;

std::vector<std::string> inOrder(const Texts& texts) { return {texts.begin(), texts.end()}; }

/// Looks at the components of one item.
class GroupCheck {
public:
    GroupCheck(ListContext& context, ItemKeys& keys, const Group& group,
               std::vector<Conflict>& found)
        : context_(context), keys_(keys), group_(group), found_(found) {}

    void run() {
        check("part number", [&](std::size_t each) { return ownNumberOf(each); });
        if (context_.request.merging.by != MergeBy::Shape) {
            // What is merged by its shape is so whatever it is called.
            check("name", [&](std::size_t each) { return context_.baseNameOf(each); });
        }
        check("material", [&](std::size_t each) { return materialOf(each); });
        checkMass();
        check("shape", [&](std::size_t each) { return shapeText(each); });
        check("kind", [&](std::size_t each) { return kindOf(each); });
        checkContents();
    }

private:
    /// A conflict where the texts differ, those that are empty left out.
    template <class TextOf>
    void check(const char* what, TextOf textOf) {
        Texts texts;
        for (const std::size_t component : group_) {
            texts.insert(textOf(component));
        }
        texts.erase("");
        if (texts.size() > 1) {
            add(what, inOrder(texts));
        }
    }

    void add(const char* what, std::vector<std::string> values) {
        Texts names;
        for (const std::size_t component : group_) {
            names.insert(context_.at(component).name);
        }
        found_.push_back({.what = what,
                          .item = keys_.textOf(group_.front()),
                          .values = std::move(values),
                          .components = inOrder(names)});
    }

    /// A number that equals the name was made up by the file's writer, and orders nothing.
    [[nodiscard]] std::string ownNumberOf(std::size_t component) const {
        const host::ComponentData& data = context_.at(component);
        return data.partNumber == data.name ? "" : data.partNumber;
    }

    [[nodiscard]] std::string materialOf(std::size_t component) const {
        const host::ComponentData& data = context_.at(component);
        return data.geometry != nullptr && data.material ? data.material->name : "";
    }

    [[nodiscard]] std::string shapeText(std::size_t component) const {
        const std::optional<int> shape = context_.shapeOf(component);
        return shape ? std::to_string(*shape) : "";
    }

    [[nodiscard]] std::string kindOf(std::size_t component) const {
        return context_.tree.isOpened(component) ? "assembly" : "part";
    }

    void checkMass() {
        if (!context_.isMeasured) {
            return;
        }
        std::set<double> masses;
        for (const std::size_t component : group_) {
            const Measured measured = context_.measures.whole(component);
            if (!measured.isUnmeasured) {
                masses.insert(measured.mass);
            }
        }
        if (!masses.empty() &&
            *masses.rbegin() - *masses.begin() > kSameMassWithin * *masses.rbegin()) {
            std::vector<std::string> values;
            for (const double mass : masses) {
                values.push_back(numberText({.value = mass}, {}) + " kg");
            }
            add("mass", std::move(values));
        }
    }

    void checkContents() {
        std::set<int> contents;
        for (const std::size_t component : group_) {
            if (context_.tree.isOpened(component)) {
                contents.insert(keys_.contentOf(component));
            }
        }
        if (contents.size() > 1) {
            add("contents", {});
        }
    }

    ListContext& context_;
    ItemKeys& keys_;
    const Group& group_;
    std::vector<Conflict>& found_;
};

}  // namespace

std::vector<Conflict> findConflicts(ListContext& context, ItemKeys& keys) {
    std::unordered_map<std::string, Group> groups;
    for (const std::size_t component : context.tree.reached()) {
        if (component != 0) {
            groups[keys.keyOf(component)].push_back(component);
        }
    }
    // Most items are one component: only the others are put into order.
    std::map<std::string, const Group*, NaturalLess> merged;
    for (const auto& [key, group] : groups) {
        if (group.size() > 1) {
            merged.emplace(key, &group);
        }
    }
    std::vector<Conflict> found;
    for (const auto& [key, group] : merged) {
        GroupCheck(context, keys, *group, found).run();
    }
    return found;
}

std::vector<PossibleDuplicate> findDuplicates(const ListContext& context, ItemKeys& keys) {
    if (context.request.merging.by == MergeBy::Shape) {
        return {};
    }
    std::map<int, Texts> numbers;
    for (const std::size_t component : context.tree.reached()) {
        const std::optional<int> shape = context.shapeOf(component);
        if (shape && !context.tree.isOpened(component)) {
            numbers[*shape].insert(keys.textOf(component));
        }
    }
    std::vector<PossibleDuplicate> duplicates;
    for (const auto& [shape, items] : numbers) {
        if (items.size() > 1) {
            duplicates.push_back({.shape = shape, .items = inOrder(items)});
        }
    }
    return duplicates;
}

}  // namespace parts
