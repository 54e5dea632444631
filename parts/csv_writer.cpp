#include "parts/csv_writer.h"

#include "parts/formula_guard.h"

#include <string>
#include <string_view>

namespace parts {
namespace {

constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";

/// What a spreadsheet splits a text at by default, whatever the delimiter is: it would run the
/// second half of "a;=cmd".
constexpr const char* kSeparators = ",;\t";

std::string quotedWhereNeeded(const std::string& value, const std::string& special) {
    if (value.find_first_of(special) == std::string::npos) {
        return value;
    }
    std::string quoted = "\"";
    for (const char each : value) {
        quoted += each == '"' ? "\"\"" : std::string(1, each);
    }
    return quoted + "\"";
}

std::string escapedForTsv(const std::string& value) {
    std::string escaped;
    for (const char each : value) {
        switch (each) {
            case '\t':
                escaped += "\\t";
                break;
            case '\n':
                escaped += "\\n";
                break;
            case '\r':
                escaped += "\\r";
                break;
            case '\\':
                escaped += "\\\\";
                break;
            default:
                escaped += each;
        }
    }
    return escaped;
}

std::string valueOf(const Cell& cell, const NumberFormat& numbers, bool guardFormulas) {
    const bool isText = std::holds_alternative<std::string>(cell);
    const std::string value = cellText(cell, numbers);
    return isText && guardFormulas ? guardedFormula(value) : value;
}

/// Captions and rows, with what goes between values, at the end of lines, and into a line whose one
/// value is empty.
template <class ToText>
void writeLines(const PartsList& list, std::ostream& stream, char delimiter, const char* lineEnd,
                const char* emptyLine, ToText toText) {
    std::string line;
    const auto finishLine = [&] {
        line += lineEnd;
        stream << line;
        line.clear();
    };
    for (const ListColumn& column : list.columns) {
        line += (&column == &list.columns.front() ? "" : std::string(1, delimiter)) +
                toText(Cell(column.caption));
    }
    finishLine();
    for (const PartsRow& row : list.rows) {
        for (std::size_t cell = 0; cell < row.cells.size(); ++cell) {
            line += (cell == 0 ? "" : std::string(1, delimiter)) + toText(row.cells[cell]);
        }
        // A line without anything is none to most readers.
        line += line.empty() ? emptyLine : "";
        finishLine();
    }
}

}  // namespace

void writeCsv(const PartsList& list, const CsvFormat& format, std::ostream& stream) {
    stream << (format.byteOrderMark ? kByteOrderMark : "");
    const std::string inNumbers = std::string("\"\r\n") + format.delimiter;
    const std::string inTexts = inNumbers + kSeparators;
    writeLines(list, stream, format.delimiter, "\r\n", "\"\"", [&](const Cell& cell) {
        return quotedWhereNeeded(valueOf(cell, format.numbers, format.guardFormulas),
                                 std::holds_alternative<std::string>(cell) ? inTexts : inNumbers);
    });
}

void writeTsv(const PartsList& list, const TsvFormat& format, std::ostream& stream) {
    writeLines(list, stream, '\t', "\n", "", [&](const Cell& cell) {
        return escapedForTsv(valueOf(cell, format.numbers, format.guardFormulas));
    });
}

}  // namespace parts
