#include "parts/parts_request.h"

#include "parts/ascii.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>

namespace parts {
namespace {

constexpr std::array kViews = {"parts", "indented", "top", "all"};
constexpr std::array kMergings = {"part-number", "name", "component", "shape"};

/// Longer operators first: "<=" begins like "<".
struct Operator {
    std::string_view text;
    Comparison comparison;
};
constexpr std::array kOperators = {
    Operator{.text = "!=", .comparison = Comparison::NotEqual},
    Operator{.text = "<=", .comparison = Comparison::LessOrEqual},
    Operator{.text = ">=", .comparison = Comparison::GreaterOrEqual},
    Operator{.text = "=", .comparison = Comparison::Equal},
    Operator{.text = "~", .comparison = Comparison::Contains},
    Operator{.text = "<", .comparison = Comparison::Less},
    Operator{.text = ">", .comparison = Comparison::Greater},
};

[[noreturn]] void refuseText(std::string_view text, const std::string& reason) {
    throw RequestError("\"" + std::string(text) + "\": " + reason);
}

struct FoundOperator {
    std::size_t at;
    const Operator* comparison;
};

FoundOperator findOperator(std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\\') {
            ++at;
            continue;
        }
        const auto* const found = std::ranges::find_if(kOperators, [&](const Operator& each) {
            return text.substr(at).starts_with(each.text);
        });
        if (found != kOperators.end()) {
            return {.at = at, .comparison = found};
        }
    }
    refuseText(text, "expected COLUMN, one of = != ~ < > <= >=, and a value");
}

/// The number that a value begins with, and takes it off.
std::optional<double> takeNumber(std::string_view& text) {
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [last, failure] = std::from_chars(text.data(), end, number);
    if (failure != std::errc()) {
        return std::nullopt;
    }
    text = trimmed(text.substr(static_cast<std::size_t>(last - text.data())));
    return number;
}

/// A number in the host's unit; nothing for an empty value, which finds what is not known.
std::optional<double> numberOf(const Filter& filter, const Units& units, std::string_view whole) {
    const FieldInfo& info = infoOf(filter.column.field);
    std::string_view rest = filter.text;
    if (!info.isNumber || filter.comparison == Comparison::Contains || rest.empty()) {
        return std::nullopt;
    }
    const std::optional<double> number = takeNumber(rest);
    const Unit* unit =
        filter.column.unit != nullptr ? filter.column.unit : units.of(info.dimension);
    if (!rest.empty()) {
        unit = findUnit(rest);
    }
    const bool isKnown = rest.empty() || (unit != nullptr && unit->dimension == info.dimension);
    if (!number || !isKnown || (!rest.empty() && info.dimension == Dimension::None)) {
        refuseText(whole, "expected a number" +
                              (info.dimension == Dimension::None
                                   ? std::string()
                                   : ", with one of the units " +
                                         withCommas(unitNames(info.dimension)) + " or none"));
    }
    return *number / (unit == nullptr ? 1 : unit->factor);
}

bool needsBodies(const Column& column) { return infoOf(column.field).isMeasured; }

/// Whether any column that the list shows, merges, filters or sorts by is such a one.
template <class Is>
bool looksAt(const PartsRequest& request, Is is) {
    return std::ranges::any_of(columnsOf(request), is) ||
           std::ranges::any_of(request.merging.columns, is) ||
           std::ranges::any_of(request.filters, is, &Filter::column) ||
           std::ranges::any_of(request.sort, is, &SortKey::column);
}

/// Refuses columns that say where or how often a component is: they cannot say which ones are
/// equal.
void checkMerging(const std::vector<Column>& columns) {
    for (const Column& column : columns) {
        if (infoOf(column.field).isOfComponent) {
            continue;
        }
        std::vector<std::string> known;
        for (const FieldInfo& info : fieldInfos()) {
            if (info.isOfComponent) {
                known.emplace_back(info.name);
            }
        }
        refuseText(nameOf(column),
                   "no property of a component, so nothing can be merged by it; "
                   "expected custom properties or " +
                       withCommas(known));
    }
}

/// Takes ":desc" or ":asc" off an entry.
bool takeDescending(std::string_view& entry) {
    constexpr std::string_view kDescending = ":desc";
    constexpr std::string_view kAscending = ":asc";
    const bool isDescending = entry.ends_with(kDescending);
    if (isDescending || entry.ends_with(kAscending)) {
        entry.remove_suffix(isDescending ? kDescending.size() : kAscending.size());
    }
    return isDescending;
}

}  // namespace

std::vector<Column> defaultColumns(View view) {
    std::vector<Column> columns = {
        {.field = Field::Item}, {.field = Field::PartNumber}, {.field = Field::PartName}};
    if (view == View::Indented) {
        columns.push_back({.field = Field::QuantityPerParent});
    }
    for (const Field field : {Field::Quantity, Field::Mass, Field::TotalMass, Field::Material}) {
        columns.push_back({.field = field});
    }
    if (view == View::All) {
        columns.push_back({.field = Field::UsedIn});
    }
    return columns;
}

std::vector<Column> columnsOf(const PartsRequest& request) {
    return request.columns.empty() ? defaultColumns(request.view) : request.columns;
}

View parseView(std::string_view text) {
    const auto* const found = std::ranges::find(kViews, text);
    if (found == kViews.end()) {
        refuseText(text, "no such view; there are " + withCommas({kViews.begin(), kViews.end()}));
    }
    return static_cast<View>(found - kViews.begin());
}

std::string viewName(View view) { return kViews.at(static_cast<std::size_t>(view)); }

Merging parseMerging(std::string_view text) {
    const auto* const found = std::ranges::find(kMergings, text);
    if (found == kMergings.end()) {
        Merging merging{.by = MergeBy::Columns, .columns = parseColumns(text)};
        checkMerging(merging.columns);
        return merging;
    }
    return {.by = static_cast<MergeBy>(found - kMergings.begin())};
}

std::string mergingText(const Merging& merging) {
    if (merging.by != MergeBy::Columns) {
        return kMergings.at(static_cast<std::size_t>(merging.by));
    }
    std::string text;
    for (const Column& column : merging.columns) {
        text += (text.empty() ? "" : ",") + columnText(column);
    }
    return text;
}

Filter parseFilter(std::string_view text, const Units& units) {
    const FoundOperator found = findOperator(text);
    Filter filter;
    filter.comparison = found.comparison->comparison;
    filter.text = trimmed(text.substr(found.at + found.comparison->text.size()));
    filter.column = parseColumn(text.substr(0, found.at));
    filter.number = numberOf(filter, units, text);
    return filter;
}

std::vector<SortKey> parseSort(std::string_view text) {
    std::vector<SortKey> keys;
    for (std::string_view entry : splitList(text)) {
        SortKey key;
        key.isDescending = takeDescending(entry);
        key.column = parseColumn(entry);
        if (key.column.field == Field::Item || key.column.field == Field::Thumbnail) {
            refuseText(text, "a list cannot be sorted by " + nameOf(key.column));
        }
        keys.push_back(std::move(key));
    }
    return keys;
}

std::string filterText(const Filter& filter) {
    const auto* const found =
        std::ranges::find(kOperators, filter.comparison, &Operator::comparison);
    return columnText(filter.column) + std::string(found->text) + filter.text;
}

bool restsOnMaterials(const PartsRequest& request) {
    return looksAt(request, [](const Column& column) {
        return column.field == Field::Mass || column.field == Field::TotalMass ||
               column.field == Field::Density || column.field == Field::Material;
    });
}

bool needsBodies(const PartsRequest& request) {
    return needsShapes(request) ||
           looksAt(request, [](const Column& column) { return needsBodies(column); });
}

bool needsShapes(const PartsRequest& request) {
    return request.merging.by == MergeBy::Shape ||
           std::ranges::any_of(request.columns, [](const Column& column) {
               return column.field == Field::Thumbnail;
           });
}

}  // namespace parts
