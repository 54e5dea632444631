#include "parts/views.h"

#include "parts/natural_order.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

namespace parts {
namespace {

/// The component that a row is named after: it does not depend on the order of the design.
std::size_t firstByName(const ListContext& context, const std::vector<Member>& members) {
    const auto isBefore = [&](const Member& left, const Member& right) {
        return naturalOrder(context.at(left.component).name, context.at(right.component).name) < 0;
    };
    return std::ranges::min_element(members, isBefore)->component;
}

/// Sorts by component, and adds up what is of one.
template <class Counted>
void combine(std::vector<Counted>& all) {
    std::ranges::sort(all, {}, &Counted::component);
    std::vector<Counted> sums;
    for (const Counted& each : all) {
        if (!sums.empty() && sums.back().component == each.component) {
            sums.back().quantity += each.quantity;
        } else {
            sums.push_back(each);
        }
    }
    all = std::move(sums);
}

/// No assembly's shape was compared.
std::optional<int> shapeOf(const ListContext& context, const PartsRow& row) {
    switch (row.kind) {
        case RowKind::Part:
            return context.shapeOf(row.component);
        case RowKind::OwnBodies:
            return context.ownShapeOf(row.component);
        case RowKind::Assembly:
            break;
    }
    return std::nullopt;
}

/// The paths below a row are those in the component that made its own.
void putFirst(std::vector<Member>& members, std::size_t component) {
    const auto first = std::ranges::find(members, component, &Member::component);
    std::rotate(members.begin(), first, std::next(first));
}

void finish(const ListContext& context, PartsRow& row) {
    combine(row.members);
    combine(row.usedIn);
    row.component = firstByName(context, row.members);
    row.shape = shapeOf(context, row);
}

/// The parents of each component, and how many of it one of them has.
std::vector<std::vector<Use>> findUses(const ListContext& context) {
    std::vector<std::vector<Use>> uses(context.design.components.size());
    for (const std::size_t parent : context.tree.reached()) {
        if (context.tree.isOpened(parent)) {
            for (const Line& line : context.tree.lines(parent)) {
                uses[line.component].push_back({.component = parent, .quantity = line.quantity});
            }
        }
    }
    return uses;
}

/// Rows in which each item is once.
class FlatRows {
public:
    FlatRows(ListContext& context, ItemKeys& keys)
        : context_(context), keys_(keys), uses_(findUses(context)) {}

    void add(std::size_t component, RowKind kind) {
        const auto key = std::pair(keys_.keyOf(component), kind);
        const auto [found, isNew] = indexOf_.try_emplace(key, rows_.size());
        if (isNew) {
            rows_.push_back(PartsRow{.kind = kind,
                                     .level = std::numeric_limits<int>::max(),
                                     .path = context_.tree.path(component)});
        }
        PartsRow& row = rows_[found->second];
        const std::int64_t quantity = context_.tree.quantity(component) * context_.request.multiply;
        row.quantity += quantity;
        row.level = std::min(row.level, std::max(1, context_.tree.level(component)));
        row.members.push_back({.component = component, .quantity = quantity});
        addUses(row, component, kind);
    }

    std::vector<PartsRow> take() {
        for (PartsRow& row : rows_) {
            finish(context_, row);
            row.perParent = perParentOf(row);
        }
        return std::move(rows_);
    }

private:
    /// The bodies of a component are in itself, once.
    void addUses(PartsRow& row, std::size_t component, RowKind kind) {
        if (kind == RowKind::OwnBodies) {
            row.usedIn.push_back({.component = component, .quantity = 1});
            return;
        }
        const std::vector<Use>& uses = uses_[component];
        row.usedIn.insert(row.usedIn.end(), uses.begin(), uses.end());
    }

    static std::int64_t perParentOf(const PartsRow& row) {
        const bool isSame = std::ranges::all_of(row.usedIn, [&](const Use& use) {
            return use.quantity == row.usedIn.front().quantity;
        });
        return isSame && !row.usedIn.empty() ? row.usedIn.front().quantity : 0;
    }

    ListContext& context_;
    ItemKeys& keys_;
    std::vector<std::vector<Use>> uses_;
    std::map<std::pair<std::string, RowKind>, std::size_t> indexOf_;
    std::vector<PartsRow> rows_;
};

std::vector<PartsRow> flatRows(ListContext& context, ItemKeys& keys) {
    const View view = context.request.view;
    FlatRows rows(context, keys);
    for (const std::size_t component : context.tree.reached()) {
        const bool isRoot = component == 0;
        const bool isOpened = context.tree.isOpened(component);
        if (!isOpened || (view == View::All && !isRoot)) {
            rows.add(component, isOpened ? RowKind::Assembly : RowKind::Part);
        }
        if (isOpened && context.hasBodies(component)) {
            rows.add(component, RowKind::OwnBodies);
        }
    }
    return rows.take();
}

/// The tree, in which what is equal at one place is one row.
class TreeRows {
public:
    TreeRows(ListContext& context, ItemKeys& keys) : context_(context), keys_(keys) {}

    std::vector<PartsRow> make() {
        PartsRow root;
        root.quantity = context_.request.multiply;
        root.members = {{.component = 0, .quantity = root.quantity}};
        root.level = 0;
        addBelow(root, std::nullopt);
        return std::move(rows_);
    }

private:
    /// The bodies that an assembly has of its own: all of its members have some, or none has.
    void addOwnBodies(const PartsRow& parent, std::optional<std::size_t> index) {
        if (context_.hasBodies(parent.members.front().component)) {
            PartsRow bodies = parent;
            bodies.kind = RowKind::OwnBodies;
            bodies.level = parent.level + 1;
            bodies.parent = index;
            bodies.perParent = 1;
            bodies.shape = shapeOf(context_, bodies);
            rows_.push_back(std::move(bodies));
        }
    }

    /// The rows that are directly in a row, one for each item.
    std::vector<PartsRow> childrenOf(const PartsRow& parent, std::optional<std::size_t> index) {
        std::vector<PartsRow> children;
        std::unordered_map<int, std::size_t> indexOf;
        for (const Member& member : parent.members) {
            for (const Line& line : context_.tree.lines(member.component)) {
                const auto [found, isNew] =
                    indexOf.try_emplace(keys_.contentOf(line.component), children.size());
                if (isNew) {
                    children.push_back(PartsRow{
                        .level = parent.level + 1,
                        .parent = index,
                        .path = parent.path + (parent.path.empty() ? "" : "+") + line.place});
                }
                PartsRow& child = children[found->second];
                const std::int64_t quantity = member.quantity * line.quantity;
                child.quantity += quantity;
                child.members.push_back({.component = line.component, .quantity = quantity});
            }
        }
        for (PartsRow& child : children) {
            const std::size_t first = child.members.front().component;
            child.perParent = child.quantity / parent.quantity;
            const bool isOpened = context_.tree.isOpened(child.members.front().component);
            child.kind = isOpened ? RowKind::Assembly : RowKind::Part;
            finish(context_, child);
            putFirst(child.members, first);
        }
        return children;
    }

    void addBelow(const PartsRow& parent, std::optional<std::size_t> index) {
        addOwnBodies(parent, index);
        for (PartsRow& child : childrenOf(parent, index)) {
            const std::size_t place = rows_.size();
            rows_.push_back(child);
            if (child.kind == RowKind::Assembly) {
                addBelow(child, place);
            }
        }
    }

    ListContext& context_;
    ItemKeys& keys_;
    std::vector<PartsRow> rows_;
};

}  // namespace

std::vector<PartsRow> rowsOf(ListContext& context, ItemKeys& keys) {
    return context.request.view == View::Indented ? TreeRows(context, keys).make()
                                                  : flatRows(context, keys);
}

}  // namespace parts
