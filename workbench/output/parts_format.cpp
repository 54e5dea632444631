#include "workbench/output/parts_format.h"

#include "workbench/cli/console.h"
#include "workbench/cli/exit_code.h"
#include "workbench/output/parts_table.h"
#include "workbench/output/result_stream.h"

#include "host/base/utf8_path.h"
#include "parts/ascii.h"
#include "parts/csv_writer.h"
#include "parts/json_writer.h"
#include "parts/markdown_writer.h"
#include "parts/xlsx_writer.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace workbench {
namespace {

struct KnownFormat {
    PartsFormatKind kind;
    const char* name;
    const char* ending;
};

constexpr KnownFormat kFormats[] = {
    {.kind = PartsFormatKind::Table, .name = "table", .ending = ".txt"},
    {.kind = PartsFormatKind::Csv, .name = "csv", .ending = ".csv"},
    {.kind = PartsFormatKind::Tsv, .name = "tsv", .ending = ".tsv"},
    {.kind = PartsFormatKind::Markdown, .name = "markdown", .ending = ".md"},
    {.kind = PartsFormatKind::Xlsx, .name = "xlsx", .ending = ".xlsx"},
    {.kind = PartsFormatKind::Json, .name = "json", .ending = ".json"},
    {.kind = PartsFormatKind::JsonLines, .name = "jsonl", .ending = ".jsonl"},
    {.kind = PartsFormatKind::Model, .name = "glb", .ending = ".glb"},
    {.kind = PartsFormatKind::Page, .name = "html", .ending = ".html"},
};

std::vector<std::string> endings() {
    std::vector<std::string> endings;
    for (const KnownFormat& format : kFormats) {
        endings.emplace_back(format.ending);
    }
    return endings;
}

char delimiterOf(const PartsFormat& format) {
    if (!format.delimiter.empty()) {
        return format.delimiter.front();
    }
    return format.numbers.decimalComma ? ';' : ',';
}

void writeXlsx(const parts::PartsList& list, const parts::NumberFormat& numbers,
               std::ostream& stream) {
    try {
        stream << parts::xlsxOf(list, numbers);
    } catch (const parts::XlsxError& error) {
        throw Failure(ExitCode::OutputFailed, error.what());
    }
}

}  // namespace

std::vector<std::string> partsFormatNames() {
    std::vector<std::string> names;
    for (const KnownFormat& format : kFormats) {
        names.emplace_back(format.name);
    }
    return names;
}

PartsFormatKind parsePartsFormat(const std::string& name) {
    const auto* const found = std::ranges::find(kFormats, name, &KnownFormat::name);
    return found == std::end(kFormats) ? PartsFormatKind::Table : found->kind;
}

PartsFormatKind partsFormatOf(const std::string& file) {
    const std::string ending = parts::lowerCase(host::toUtf8(host::fromUtf8(file).extension()));
    const auto* const found = std::ranges::find(kFormats, ending, &KnownFormat::ending);
    if (found != std::end(kFormats)) {
        return found->kind;
    }
    // Of a name like "list-{stem}" the ending is not known; "list." has none.
    if (!ending.empty() && ending != "." && ending.find('}') == std::string::npos) {
        refuse(file + ": no format has the ending " + ending +
               "; name one with --format, or end with " + parts::withCommas(endings()));
    }
    return PartsFormatKind::Table;
}

bool canBeJoined(PartsFormatKind kind) { return kind == PartsFormatKind::JsonLines; }

void writeParts(const parts::PartsList& list, const PartsFormat& format, std::ostream& stream) {
    switch (format.kind) {
        case PartsFormatKind::Csv:
            writeCsv(list,
                     {.numbers = format.numbers,
                      .delimiter = delimiterOf(format),
                      .byteOrderMark = format.byteOrderMark,
                      .guardFormulas = format.guardFormulas},
                     stream);
            break;
        case PartsFormatKind::Tsv:
            writeTsv(list, {.numbers = format.numbers, .guardFormulas = format.guardFormulas},
                     stream);
            break;
        case PartsFormatKind::Markdown:
            writeMarkdown(list, format.numbers, stream);
            break;
        case PartsFormatKind::Xlsx:
            writeXlsx(list, format.numbers, stream);
            break;
        case PartsFormatKind::Json:
            writeJson(list, parts::JsonLayout::Indented, stream);
            break;
        case PartsFormatKind::JsonLines:
            writeJson(list, parts::JsonLayout::Line, stream);
            break;
        case PartsFormatKind::Table:
            stream << (format.isForFile
                           ? partsTable(list, format.numbers, console::Charset::Utf8)
                           : partsTable(list, format.numbers, console::charset(), resultWidth()));
            break;
        case PartsFormatKind::Model:
        case PartsFormatKind::Page:
            throw std::logic_error("a list is no model");
    }
}

}  // namespace workbench
