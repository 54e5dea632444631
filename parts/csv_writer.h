#pragma once

#include "parts/number_text.h"
#include "parts/parts_list.h"

#include <ostream>

namespace parts {

struct CsvFormat {
    NumberFormat numbers = {};
    char delimiter = ',';
    bool byteOrderMark = false;
    /// Puts an apostrophe before a text that a spreadsheet would run as a formula.
    bool guardFormulas = true;
};

/// Captions and rows after RFC 4180: CR LF at line ends, quotes where a value needs them, and
/// around texts with a comma, a semicolon or a tab. Pictures are left empty.
void writeCsv(const PartsList& list, const CsvFormat& format, std::ostream& stream);

struct TsvFormat {
    NumberFormat numbers = {};
    bool guardFormulas = true;
};

/// A line for each row, tabs between the values; "\t", "\n", "\r" and "\\" stand for a tab, line
/// ends and a backslash in a value.
void writeTsv(const PartsList& list, const TsvFormat& format, std::ostream& stream);

}  // namespace parts
