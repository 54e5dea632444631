#include "workbench/cli/common_options.h"
#include "workbench/cli/console.h"
#include "workbench/cli/exit_code.h"
#include "workbench/cli/final_status.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/design_reading.h"
#include "workbench/commands/edited_parts_list.h"
#include "workbench/commands/parts_options.h"
#include "workbench/output/comparison_text.h"
#include "workbench/output/remarks.h"
#include "workbench/output/result_stream.h"

#include "host/base/utf8_path.h"
#include "parts/ascii.h"
#include "parts/bom_structure.h"
#include "parts/compare.h"

#include "host/import/read_shapes.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace workbench {
namespace {

constexpr const char* kTable = "table";
constexpr const char* kMarkdown = "markdown";
constexpr const char* kJson = "json";

struct FormatOfEnding {
    const char* ending;
    const char* format;
};

constexpr FormatOfEnding kEndings[] = {{.ending = ".txt", .format = kTable},
                                       {.ending = ".md", .format = kMarkdown},
                                       {.ending = ".json", .format = kJson}};

struct CompareOptions {
    const CLI::App* command = nullptr;
    std::string before;
    std::string after;
    ReadingOptions reading;
    PartsOptions list;
    bool exitCode = false;
};

std::set<std::string> propertiesOf(const std::vector<const host::DesignData*>& designs) {
    std::set<std::string> names;
    for (const host::DesignData* const design : designs) {
        const std::vector<std::string> some = parts::propertyNames(*design);
        names.insert(some.begin(), some.end());
    }
    return names;
}

/// What is compared of two designs: what one orders by, and all custom properties. A property that
/// one of them has, the other need not have.
std::vector<parts::Column> comparedColumns(const CompareOptions& options,
                                           const std::vector<const host::DesignData*>& designs) {
    const std::set<std::string> names = propertiesOf(designs);
    std::vector<parts::Column> columns = requestOf(options.list).columns;
    for (parts::Column& column : columns) {
        column.isChosenProperty = column.isChosenProperty || names.contains(column.property);
    }
    if (!columns.empty()) {
        return columns;
    }
    const bool isTree = parts::parseView(options.list.view) == parts::View::Indented;
    columns = parts::parseColumns(std::string("Part Name,Description,") +
                                  (isTree ? "Quantity per parent" : "Quantity") +
                                  ",Mass,Material,BOM Structure");
    for (const std::string& name : names) {
        columns.push_back(
            {.field = parts::Field::Property, .property = name, .isChosenProperty = true});
    }
    return columns;
}

std::vector<parts::ComparedColumn> aboutColumns(const parts::PartsList& list, std::size_t count) {
    std::vector<parts::ComparedColumn> columns;
    for (std::size_t column = 0; column < count; ++column) {
        columns.push_back(
            {.field = list.columns[column].column.field, .caption = list.columns[column].caption});
    }
    return columns;
}

enum class Shapes { NotRead, Read };

/// A design with the list of it that is compared. What there is to remark is reported.
struct ListedDesign {
    ListedDesign(const std::string& file, const host::DesignData& design,
                 const parts::PartsRequest& request, Shapes wanted)
        : shapes(wanted == Shapes::Read ? host::readShapes(design, {.classes = true})
                                        : host::ShapeData()),
          list(listOf(design, request, parts::partShapesOf(shapes, parts::Pictures::None))) {
        Remarks remarks;
        addProblems(remarks, design, shapes);
        addWarnings(remarks, list.warnings);
        reportRemarks(remarks, file);
    }

    host::ShapeData shapes;
    parts::PartsList list;
};

parts::ListComparison compareDesigns(const CompareOptions& options) {
    const host::DesignData before = readDesign(options.before, options.reading);
    const host::DesignData after = readDesign(options.after, options.reading);
    parts::PartsRequest request = requestOf(options.list);
    request.columns = comparedColumns(options, {&before, &after});
    const std::size_t count = request.columns.size();
    const parts::PartsRequest whole = parts::comparisonRequest(request);
    const ListedDesign old(options.before, before, whole, Shapes::Read);
    const ListedDesign now(options.after, after, whole, Shapes::Read);
    return parts::compareLines(parts::linesOf(old.list, count, old.shapes),
                               parts::linesOf(now.list, count, now.shapes),
                               aboutColumns(old.list, count));
}

/// A design and a list of it that was edited in a spreadsheet.
parts::ListComparison compareWithList(const CompareOptions& options, bool isListOld) {
    const parts::PartsRequest request = requestOf(options.list);
    if (request.view == parts::View::Indented) {
        refuse(
            "--view indented: compares two designs, by what their lines are in; for a list there "
            "are parts, top, all");
    }
    const EditedPartsList edited(isListOld ? options.before : options.after, request);
    const std::string& file = isListOld ? options.after : options.before;
    const host::DesignData design = readDesign(file, options.reading);
    // A list has no shapes to compare with.
    const Shapes shapes = parts::needsShapes(edited.request()) ? Shapes::Read : Shapes::NotRead;
    const parts::PartsList list = ListedDesign(file, design, edited.request(), shapes).list;
    const std::vector<parts::ComparedLine> ofDesign = edited.linesOf(list);
    std::vector<parts::ComparedColumn> columns = aboutColumns(list, list.columns.size());
    for (parts::ComparedColumn& column : columns) {
        column.isAsShown = true;
        column.shownDigits = options.list.writing.numbers.significantDigits;
    }
    return isListOld ? parts::compareLines(edited.lines(), ofDesign, columns)
                     : parts::compareLines(ofDesign, edited.lines(), columns);
}

parts::ListComparison compared(const CompareOptions& options) {
    const bool isOldList = isEditedPartsList(options.before);
    const bool isNewList = isEditedPartsList(options.after);
    if (isOldList && isNewList) {
        refuse("OLD and NEW are both lists; one of them has to be a design");
    }
    return isOldList || isNewList ? compareWithList(options, isOldList) : compareDesigns(options);
}

/// How the comparison is written: as asked for, else as the ending of the output says.
std::string formatOf(const CompareOptions& options) {
    if (!options.list.format.empty()) {
        return options.list.format;
    }
    const CLI::results_t& output = options.command->get_option("--output")->results();
    const std::string file = output.empty() ? "" : output.back();
    const std::string ending = parts::lowerCase(host::toUtf8(host::fromUtf8(file).extension()));
    if (ending.empty()) {
        return kTable;
    }
    const auto* const found = std::ranges::find(kEndings, ending, &FormatOfEnding::ending);
    if (found == std::end(kEndings)) {
        refuse("--output " + file + ": no format of a comparison has the ending " + ending +
               "; name one with --format, or end with .txt, .md or .json");
    }
    return found->format;
}

std::string textOf(const parts::ListComparison& comparison, const std::string& format,
                   const CompareOptions& options) {
    if (format == kJson) {
        return comparisonJson(comparison);
    }
    return format == kMarkdown ? comparisonMarkdown(comparison, options.list.writing.numbers)
                               : comparisonTable(comparison, options.list.writing.numbers,
                                                 console::charset(), resultWidth());
}

void runCompare(const CompareOptions& options) {
    const std::string format = formatOf(options);
    parts::ListComparison comparison = compared(options);
    comparison.before = options.before;
    comparison.after = options.after;
    std::cout << textOf(comparison, format, options);
    if (options.exitCode && !comparison.changes.empty()) {
        setFinalStatus(ExitCode::Different);
    }
}

void addLists(CLI::App& command, CompareOptions& options) {
    command
        .add_option("OLD", options.before,
                    "A design, or a list of it as CSV or TSV that parts wrote and that was edited")
        ->required();
    command.add_option("NEW", options.after, "The other one; at least one is a design")->required();
    command
        .add_option("--columns", options.list.columns,
                    "What is compared, as for parts; by default names, descriptions, quantities,\n"
                    "masses, materials, BOM structures and all custom properties, and of a list\n"
                    "the columns that it has")
        ->type_name("COLUMNS")
        ->allow_extra_args(false);
    command
        .add_option("--digits", options.list.writing.numbers.significantDigits,
                    "Significant digits that the list was written with")
        ->check(CLI::Range(1, 17))
        ->capture_default_str();
    addView(command, options.list,
            "Which lines are compared, as for parts; those of the tree by what they are in");
    addMerging(command, options.list,
               "What lines are matched by, and what makes components one of them, as for parts");
}

}  // namespace

void addCompareCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "compare", "Print what differs between the parts lists of two designs");
    CompareOptions& options = optionsFor(command, runCompare);
    options.command = &command;
    addLists(command, options);
    command
        .add_option("--format", options.list.format,
                    "How to print it; by default as the ending of --output says, else a table")
        ->check(CLI::IsMember(std::vector<std::string>{kTable, kMarkdown, kJson}));
    command.add_flag("--exit-code", options.exitCode, "End with status 6 where something differs");
    addReading(command, options.reading);
}

}  // namespace workbench
