#pragma once

#include "workbench/output/model_request.h"

#include "parts/number_text.h"
#include "parts/parts_list.h"

#include <ostream>
#include <string>
#include <vector>

/// A parts list in the format that was asked for. A new format needs its name and ending here.
namespace workbench {

enum class PartsFormatKind { Table, Csv, Tsv, Markdown, Xlsx, Json, JsonLines, Model, Page };

/// How a list is to be written.
struct PartsFormat {
    PartsFormatKind kind = PartsFormatKind::Table;
    parts::NumberFormat numbers = {};
    std::string delimiter = {};  ///< of CSV, one character; empty: "," or ";" with a decimal comma
    bool byteOrderMark = false;
    bool guardFormulas = true;
    ModelRequest model = {};
    bool isForFile = false;  ///< not for stdout, so that a terminal's size and signs do not matter
};

/// The names for "--format".
std::vector<std::string> partsFormatNames();

/// The format of a name that is among them.
PartsFormatKind parsePartsFormat(const std::string& name);

/// The format for a file, by its ending; a table without one. Throws a `Failure` for an ending that
/// no format has.
PartsFormatKind partsFormatOf(const std::string& file);

/// Whether several lists, one after the other, are a file of this format.
bool canBeJoined(PartsFormatKind kind);

/// Writes a list, in any format but model and page, which are made of the design itself. Throws a
/// `Failure` for what the format cannot hold.
void writeParts(const parts::PartsList& list, const PartsFormat& format, std::ostream& stream);

}  // namespace workbench
