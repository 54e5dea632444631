#include "parts/markdown_writer.h"

namespace parts {
namespace {

constexpr std::string_view kSpecial = "\\`*_{}[]<>()#+!|~&$";

bool isNumeric(const ListColumn& column) { return infoOf(column.column.field).isNumber; }

void writeHead(const PartsList& list, std::ostream& stream) {
    std::string rule = "|";
    stream << "|";
    for (const ListColumn& column : list.columns) {
        stream << " " << escapedForMarkdown(column.caption) << " |";
        rule += isNumeric(column) ? " ---: |" : " --- |";
    }
    stream << "\n" << rule << "\n";
}

std::string escapedList(const std::vector<std::string>& texts) {
    std::string result;
    for (const std::string& text : texts) {
        result += (result.empty() ? "" : ", ") + escapedForMarkdown(text);
    }
    return result;
}

void writeTotals(const PartsList& list, const NumberFormat& numbers, std::ostream& stream) {
    stream << "\n" << list.totals.quantity << (list.totals.quantity == 1 ? " item" : " items");
    if (list.totals.massKg) {
        const Unit& unit = *list.request.units.mass;
        stream << ", " << (list.totals.isUnmeasured ? "at least " : "")
               << numberText({.value = *list.totals.massKg * unit.factor}, numbers) << " "
               << unit.name << (list.totals.isAssumed ? " (some materials are assumed)" : "");
    }
    stream << "\n";
}

void writeConflicts(const PartsList& list, std::ostream& stream) {
    if (list.conflicts.empty() && list.duplicates.empty()) {
        return;
    }
    stream << "\n";
    for (const Conflict& conflict : list.conflicts) {
        const bool hasValues = !conflict.values.empty();
        stream << "- " << escapedForMarkdown(conflict.item) << ": different " << conflict.what
               << " (" << escapedList(hasValues ? conflict.values : conflict.components) << ")\n";
    }
    for (const PossibleDuplicate& duplicate : list.duplicates) {
        stream << "- possible duplicates, of one shape: " << escapedList(duplicate.items) << "\n";
    }
}

}  // namespace

std::string escapedForMarkdown(std::string_view text) {
    std::string result;
    for (const char each : text) {
        if (each == '\n' || each == '\r' || each == '\t') {
            result += ' ';
            continue;
        }
        if (kSpecial.find(each) != std::string_view::npos) {
            result += '\\';
        }
        result += each;
    }
    return result;
}

void writeMarkdown(const PartsList& list, const NumberFormat& numbers, std::ostream& stream) {
    writeHead(list, stream);
    for (const PartsRow& row : list.rows) {
        stream << "|";
        for (const Cell& cell : row.cells) {
            stream << " " << escapedForMarkdown(cellText(cell, numbers)) << " |";
        }
        stream << "\n";
    }
    writeTotals(list, numbers, stream);
    writeConflicts(list, stream);
}

}  // namespace parts
