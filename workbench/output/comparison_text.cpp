#include "workbench/output/comparison_text.h"

#include "workbench/output/display_text.h"
#include "workbench/output/text_table.h"

#include "parts/markdown_writer.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>

namespace workbench {
namespace {

using parts::Change;
using parts::ChangeKind;
using parts::escapedForMarkdown;
using parts::ListComparison;

/// Differences of small numbers show in more digits than a list has.
constexpr int kDigits = 7;

std::string valueText(const parts::Cell& cell, const parts::NumberFormat& numbers) {
    return parts::cellText(cell, {.significantDigits = std::max(numbers.significantDigits, kDigits),
                                  .decimalComma = numbers.decimalComma});
}

std::size_t count(const ListComparison& comparison, ChangeKind kind) {
    return static_cast<std::size_t>(std::ranges::count(comparison.changes, kind, &Change::kind));
}

/// "1 added, 2 removed, 3 changes in other lines, 4 unchanged".
std::string summary(const ListComparison& comparison) {
    const std::size_t added = count(comparison, ChangeKind::Added);
    const std::size_t removed = count(comparison, ChangeKind::Removed);
    const std::size_t others = comparison.changes.size() - added - removed;
    return std::to_string(added) + " added, " + std::to_string(removed) + " removed, " +
           std::to_string(others) + (others == 1 ? " change" : " changes") + " in other lines, " +
           std::to_string(comparison.unchanged) + " unchanged";
}

std::string noDifferences(const ListComparison& comparison) {
    return "No differences, " + std::to_string(comparison.unchanged) +
           (comparison.unchanged == 1 ? " line\n" : " lines\n");
}

constexpr std::array kCaptions = {"Change", "Item", "What", "Old", "New"};

nlohmann::ordered_json valueJson(const parts::Cell& cell) {
    if (const auto* const number = std::get_if<parts::Number>(&cell)) {
        if (number->decimals == parts::kWhole) {
            return static_cast<std::int64_t>(number->value);
        }
        return number->value;
    }
    const std::string text = parts::cellText(cell, {});
    return text.empty() ? nlohmann::ordered_json() : nlohmann::ordered_json(text);
}

}  // namespace

std::string comparisonTable(const ListComparison& comparison, const parts::NumberFormat& numbers,
                            console::Charset charset, std::size_t width) {
    if (comparison.changes.empty()) {
        return noDifferences(comparison);
    }
    TextTable table({kCaptions.begin(), kCaptions.end()}, charset);
    for (const Change& change : comparison.changes) {
        table.add({parts::changeName(change.kind), printable(change.item), printable(change.column),
                   printable(valueText(change.before, numbers)),
                   printable(valueText(change.after, numbers))});
    }
    return table.text(/*indent=*/0, width) + "\n" + summary(comparison) + "\n";
}

std::string comparisonMarkdown(const ListComparison& comparison,
                               const parts::NumberFormat& numbers) {
    if (comparison.changes.empty()) {
        return noDifferences(comparison);
    }
    std::string text = "|";
    std::string line = "|";
    for (const char* const caption : kCaptions) {
        text += std::string(" ") + caption + " |";
        line += " --- |";
    }
    text += "\n" + line + "\n";
    for (const Change& change : comparison.changes) {
        text += "| " + parts::changeName(change.kind) + " | " + escapedForMarkdown(change.item) +
                " | " + escapedForMarkdown(change.column) + " | " +
                escapedForMarkdown(valueText(change.before, numbers)) + " | " +
                escapedForMarkdown(valueText(change.after, numbers)) + " |\n";
    }
    return text + "\n" + summary(comparison) + "\n";
}

std::string comparisonJson(const ListComparison& comparison) {
    nlohmann::ordered_json changes = nlohmann::ordered_json::array();
    for (const Change& change : comparison.changes) {
        nlohmann::ordered_json entry = {{"change", parts::changeName(change.kind)},
                                        {"item", change.item}};
        if (!change.column.empty()) {
            entry["column"] = change.column;
        }
        entry["old"] = valueJson(change.before);
        entry["new"] = valueJson(change.after);
        changes.push_back(std::move(entry));
    }
    const nlohmann::ordered_json all = {
        {"format", "tarnix-comparison"},     {"version", 1},
        {"old", comparison.before},          {"new", comparison.after},
        {"unchanged", comparison.unchanged}, {"changes", changes}};
    constexpr int kIndent = 1;
    return all.dump(kIndent) + "\n";
}

}  // namespace workbench
