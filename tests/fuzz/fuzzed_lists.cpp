#include "tests/fuzz/fuzzed_lists.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/edited_list.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <typeinfo>
#include <vector>

namespace fuzz {
namespace {

using workbench::EditedList;
using workbench::parseEditedList;
using Rows = std::vector<std::vector<std::string>>;

/// Rows of a position and two values. A value ends at a zero.
Rows rowsOf(const std::string& text) {
    std::vector<std::string> values(1);
    for (const char each : text) {
        if (each == '\0') {
            values.emplace_back();
        } else {
            values.back() += each;
        }
    }
    Rows rows;
    for (std::size_t at = 0; at < values.size(); at += 2) {
        rows.push_back({std::to_string(rows.size() + 1), values[at],
                        at + 1 < values.size() ? values[at + 1] : ""});
    }
    return rows;
}

/// As the add-in writes it: line feeds become CR LF.
std::string exported(const std::vector<std::string>& lines) {
    std::string text = "Pos.;Part Number;Note;\r\n";
    for (const std::string& line : lines) {
        for (const char each : line + "\n") {
            text += each == '\n' ? "\r\n" : std::string(1, each);
        }
    }
    return text + "\r\n;Total mass of structure BOM [kg]: ;2.000\r\n";
}

std::string findEdited(const Rows& rows) {
    std::vector<std::string> lines;
    for (const auto& row : rows) {
        lines.push_back(row[0] + ";" + row[1] + ";" + row[2] + ";");
    }
    std::size_t index = 0;
    for (const EditedList::Line& line : parseEditedList(exported(lines), "a.csv", lines).lines) {
        if (line.known != index++) {
            return "line " + std::to_string(line.number) + " of an export counts as edited";
        }
    }
    return index == lines.size() ? "" : "lines of an export are missing";
}

std::string quoted(const std::vector<std::string>& row) {
    std::string line;
    for (const std::string& field : row) {
        line += line.empty() ? "\"" : ";\"";
        for (const char each : field) {
            line += each == '"' ? "\"\"" : std::string(1, each);
        }
        line += '"';
    }
    return line + "\n";
}

std::string findChanged(const Rows& rows) {
    std::string text = quoted({"Pos.", "Part Number", "Note"});
    for (const auto& row : rows) {
        text += quoted(row);
    }
    const EditedList list = parseEditedList(text, "a.csv");
    const auto isRow = [](const EditedList::Line& line, const std::vector<std::string>& row) {
        return std::ranges::equal(line.fields, row, {}, &EditedList::Field::text);
    };
    return std::ranges::equal(list.lines, rows, isRow) ? "" : "a quoted field is read differently";
}

/// Fields are where the text is, and their lines in order.
std::string findMisplaced(const std::string& text) {
    std::size_t number = 1;
    for (const EditedList::Line& line : parseEditedList(text, "a.csv").lines) {
        if (line.number <= number || line.fields.empty()) {
            return "line " + std::to_string(line.number) + " is out of order, or has no fields";
        }
        number = line.number;
    }
    const auto feeds = static_cast<std::size_t>(
        std::ranges::count_if(text, [](char each) { return each == '\n' || each == '\r'; }));
    return number <= feeds + 1 ? "" : "a line has a number beyond the end of the text";
}

template <class Find>
std::string failureOf(Find find) {
    try {
        return find();
    } catch (const workbench::Failure&) {
        return {};
    } catch (const std::exception& error) {
        return std::string(typeid(error).name()) + ": " + error.what();
    }
}

}  // namespace

std::string readEditedLists(std::span<const std::uint8_t> bytes) {
    const std::string text(bytes.begin(), bytes.end());
    const Rows rows = rowsOf(text);
    return failureOf([&] { return findMisplaced(text); }) +
           failureOf([&] { return findEdited(rows); }) +
           failureOf([&] { return findChanged(rows); });
}

}  // namespace fuzz
