#include "parts/parts_list.h"

#include "parts/conflicts.h"
#include "parts/item_keys.h"
#include "parts/list_context.h"
#include "parts/row_filter.h"
#include "parts/row_order.h"
#include "parts/row_values.h"
#include "parts/views.h"

#include <algorithm>
#include <utility>

namespace parts {
namespace {

bool isInDesign(const host::DesignData& design, const std::string& property) {
    return std::ranges::any_of(design.components, [&](const host::ComponentData& component) {
        return propertyOf(component, property).has_value();
    });
}

void checkColumn(const host::DesignData& design, const Column& column) {
    if (column.field == Field::Property && !column.isChosenProperty &&
        !isInDesign(design, column.property)) {
        throw UnknownColumn(column.property);
    }
}

void checkRequest(const host::DesignData& design, const PartsRequest& request) {
    if (request.multiply < 1 || request.multiply > kMostMultiply) {
        throw RequestError("expected 1 to " + std::to_string(kMostMultiply) + " of the design");
    }
    for (const Column& column : request.columns) {
        checkColumn(design, column);
    }
    for (const Column& column : request.merging.columns) {
        checkColumn(design, column);
    }
    for (const Filter& filter : request.filters) {
        checkColumn(design, filter.column);
    }
    for (const SortKey& key : request.sort) {
        checkColumn(design, key.column);
    }
}

std::string keyFor(const Column& column, const std::vector<ListColumn>& before) {
    const std::string wanted =
        column.field == Field::Property ? "property:" + column.property : infoOf(column.field).key;
    std::string key = wanted;
    const auto isTaken = [&] {
        return std::ranges::find(before, key, &ListColumn::key) != before.end();
    };
    for (int number = 2; isTaken(); ++number) {
        key = wanted + " " + std::to_string(number);
    }
    return key;
}

std::vector<ListColumn> listColumns(const PartsRequest& request) {
    std::vector<ListColumn> columns;
    for (const Column& column : request.columns) {
        const Unit* const unit =
            column.unit != nullptr ? column.unit : request.units.of(infoOf(column.field).dimension);
        columns.push_back({.column = column,
                           .caption = captionOf(column, request.units),
                           .key = keyFor(column, columns),
                           .unit = unit});
    }
    return columns;
}

void fillRow(PartsRow& row, ListContext& context, RowValues& values) {
    row.isAssumed = std::ranges::any_of(row.members, [&](const Member& member) {
        return row.kind == RowKind::OwnBodies ? context.measures.isOwnAssumed(member.component)
                                              : context.measures.isAssumed(member.component);
    });
    if (context.isMeasured) {
        const Measured all = values.sum(row);
        row.isUnmeasured = all.isUnmeasured;
        if (all.hasGeometry && !all.isUnmeasured) {
            row.totalMass = all.mass;
            row.mass = all.mass / static_cast<double>(row.quantity);
        }
    }
    for (const Column& column : context.request.columns) {
        row.cells.push_back(values.cell(column, row));
    }
}

/// What a row adds to the mass of all: a row in the tree everything in it, unless a row above it
/// does so already; in a flat list an opened assembly nothing, since all in it is in other rows.
Measured shareOf(const PartsRow& row, const ListContext& context, RowValues& values) {
    const bool isInOthers = context.request.view == View::All && row.kind == RowKind::Assembly;
    return isInOthers ? Measured() : values.sum(row);
}

Totals totalsOf(const std::vector<PartsRow>& rows, const std::vector<bool>& isWanted,
                ListContext& context, RowValues& values) {
    Totals totals;
    double mass = 0;
    std::vector<bool> isCounted(rows.size());
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const PartsRow& row = rows[index];
        totals.quantity += isWanted[index] && row.kind != RowKind::Assembly ? row.quantity : 0;
        const bool isInCounted = row.parent && isCounted[*row.parent];
        isCounted[index] = isInCounted || isWanted[index];
        if (isInCounted || !isWanted[index]) {
            continue;
        }
        totals.isAssumed = totals.isAssumed || row.isAssumed;
        if (context.isMeasured) {
            const Measured share = shareOf(row, context, values);
            mass += share.mass;
            totals.isUnmeasured = totals.isUnmeasured || share.isUnmeasured;
        }
    }
    if (context.isMeasured) {
        totals.massKg = mass;
    }
    return totals;
}

std::string countText(std::size_t count, const char* one, const char* several) {
    return std::to_string(count) + " " + (count == 1 ? one : several);
}

void warnOfHidden(const ListContext& context, std::vector<ListWarning>& warnings) {
    for (const std::size_t component : context.tree.reached()) {
        const std::optional<BomStructure> hidden = hiddenStructure(context.at(component));
        if (hidden && component != 0) {
            warnings.push_back({.code = "structure-hidden",
                                .text = std::string("counts as Produce and not as ") +
                                        nameOf(*hidden) +
                                        ": another property with the value 1 comes before",
                                .component = context.at(component).name});
        }
    }
}

/// Divided components are no line, and so are the bodies of their own, wherever they are.
void warnOfDivided(const ListContext& context, std::vector<ListWarning>& warnings) {
    for (const std::size_t component : context.tree.divided()) {
        if (context.hasBodies(component)) {
            warnings.push_back(
                {.code = "divided-bodies",
                 .text = "is Divided: the bodies of its own are in no line and in no mass",
                 .component = context.at(component).name});
        }
    }
}

void warnOfUnmeasured(const ListContext& context, std::vector<ListWarning>& warnings) {
    for (const ItemMeasures::Failure& failure : context.measures.failures()) {
        warnings.push_back({.code = "unmeasured",
                            .text = failure.reason + "; its mass is in no sum",
                            .component = context.at(failure.component).name});
    }
}

void warnOfOwnBodies(const ListContext& context, std::vector<ListWarning>& warnings) {
    std::size_t count = 0;
    std::string first;
    for (const std::size_t component : context.tree.reached()) {
        if (component != 0 && context.tree.isOpened(component) && context.hasBodies(component)) {
            first = count++ == 0 ? context.at(component).name : first;
        }
    }
    if (count > 0) {
        std::string text = "has bodies of its own, which are a line of that name";
        if (count > 1) {
            text += "; so " + std::string(count == 2 ? "has " : "have ") +
                    countText(count - 1, "other assembly", "other assemblies");
        }
        warnings.push_back({.code = "own-bodies", .text = text, .component = first});
    }
}

}  // namespace

PartsList buildPartsList(const host::DesignData& design, const PartsRequest& asked,
                         const PartShapes& shapes) {
    PartsRequest request = asked;
    request.columns = columnsOf(asked);
    checkRequest(design, request);
    ListContext context(design, request, shapes);
    ItemKeys keys(context);
    RowValues values(context);
    PartsList list;
    list.design = design.name;
    list.request = request;
    list.columns = listColumns(request);
    list.rows = rowsOf(context, keys);
    warnOfOwnBodies(context, list.warnings);
    sortAndNumber(list.rows, request, values);
    const std::vector<bool> isWanted = filterRows(list.rows, request, values);
    for (PartsRow& row : list.rows) {
        fillRow(row, context, values);
    }
    list.totals = totalsOf(list.rows, isWanted, context, values);
    list.conflicts = findConflicts(context, keys);
    list.duplicates = findDuplicates(context, keys);
    warnOfHidden(context, list.warnings);
    warnOfDivided(context, list.warnings);
    warnOfUnmeasured(context, list.warnings);
    for (std::size_t component = 0; component < design.components.size(); ++component) {
        list.componentNames.push_back(design.components[component].name);
        list.componentNumbers.push_back(context.numberOf(component));
    }
    list.componentKeys.resize(design.components.size());
    for (const std::size_t component : context.tree.reached()) {
        list.componentKeys[component] = keys.textOf(component);
    }
    return list;
}

}  // namespace parts
