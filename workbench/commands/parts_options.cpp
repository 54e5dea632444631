#include "workbench/commands/parts_options.h"

#include "workbench/cli/exit_code.h"
#include "workbench/cli/nearest_word.h"

#include "parts/bom_structure.h"

#include <optional>
#include <string_view>

namespace workbench {
namespace {

using Words = PartsOptions::Words;

/// What `parse` returns; ends the program with the option's name where it makes no sense.
template <class Parse>
auto parsed(const char* option, Parse parse) {
    try {
        return parse();
    } catch (const parts::RequestError& error) {
        refuse(std::string(option) + " " + error.what());
    }
}

parts::Units unitsOf(const PartsOptions& options) {
    parts::Units units;
    if (!options.units.empty()) {
        for (const std::string_view name : parts::splitList(options.units)) {
            units.choose(name);
        }
    }
    return units;
}

std::vector<parts::Column> chosenColumns(const PartsOptions& options) {
    std::vector<parts::Column> columns;
    for (const std::string& word : options.columns) {
        const std::vector<parts::Column> some = parts::parseColumns(word);
        columns.insert(columns.end(), some.begin(), some.end());
    }
    return columns;
}

std::vector<parts::Filter> filtersOf(const PartsOptions& options, const parts::Units& units) {
    std::vector<parts::Filter> filters;
    for (const std::string& word : options.filters) {
        filters.push_back(parts::parseFilter(word, units));
    }
    return filters;
}

Words fieldNames() {
    Words names;
    for (const parts::FieldInfo& info : parts::fieldInfos()) {
        names.emplace_back(info.name);
    }
    return names;
}

/// The columns that a list of a design can have.
Words columnNames(const host::DesignData& design) {
    Words names = fieldNames();
    for (const std::string& name : parts::propertyNames(design)) {
        names.push_back(name);
    }
    return names;
}

/// What would be right in the place of a column that there is not.
std::string adviceAbout(const std::string& name, const host::DesignData& design) {
    if (name.find(';') != std::string::npos) {
        return "columns have commas between them";
    }
    const std::string nearest = nearestWord(name, columnNames(design));
    if (!nearest.empty()) {
        return "did you mean \"" + nearest + "\"?";
    }
    return name.find(':') == std::string::npos
               ? "property:NAME shows one that a design need not have"
               : "one to sort by ends in :asc, :desc or neither";
}

[[noreturn]] void refuseColumn(const parts::UnknownColumn& error, const host::DesignData& design) {
    refuse(std::string(error.what()) + "; " + adviceAbout(error.name(), design));
}

void checkDelimiter(const std::string& delimiter) {
    const bool isChosen = !delimiter.empty();
    if (isChosen && (delimiter.size() != 1 || delimiter.find_first_of("\"\r\n") == 0)) {
        refuse("--delimiter " + delimiter + ": expected one character, such as ; but no quote");
    }
}

ModelDetail detailOf(const std::string& name) {
    return name == "coarse" ? ModelDetail::Coarse
           : name == "fine" ? ModelDetail::Fine
                            : ModelDetail::Normal;
}

/// What is listed.
void addContent(CLI::App& command, PartsOptions& options) {
    addView(command, options,
            "What is listed: every item that is not opened, over all levels; the tree; the\n"
            "first level; or parts and assemblies, each once");
    addMerging(command, options,
               "What makes components one item: their part-number (the name where it is empty),\n"
               "name, or shape; nothing but the component; or columns with commas between");
    command
        .add_option("--columns", options.columns,
                    "The columns, with commas between, as in 'Item,Part Number=Number,Mass[g]:2':\n"
                    "NAME[=CAPTION][UNIT][:DECIMALS]. NAME is one of those below or a custom\n"
                    "property; a backslash keeps a comma in it. May be repeated")
        ->type_name("COLUMNS")
        ->allow_extra_args(false);
    command
        .add_option("--filter", options.filters,
                    "Show only what is as said: COLUMN, one of = != ~ < > <= >=, and a value; ~\n"
                    "finds a part of a text. Of several all have to hold. Example: 'Mass>0.5 kg'")
        ->type_name("CONDITION")
        ->allow_extra_args(false);
    command
        .add_option("--sort", options.sort,
                    "Sort by these columns, with commas between, each with :desc after it or not")
        ->type_name("COLUMNS");
    command.add_flag("--shapes", options.comparesShapes,
                     "Compare the shapes of parts: report items of one shape under different\n"
                     "numbers, and different shapes under one number. --merge-by shape and the\n"
                     "column Thumbnail compare them too; what is merged by shape is one item\n"
                     "and no duplicate");
    command.add_option("--multiply", options.multiply, "List what so many of the design need")
        ->type_name("COUNT")
        ->check(CLI::Range(std::int64_t{1}, parts::kMostMultiply))
        ->capture_default_str();
    command
        .add_option("--units", options.units,
                    "Units of columns that name none, with commas between, as in g,in")
        ->type_name("UNITS");
}

/// How it is written.
void addWriting(CLI::App& command, PartsOptions& options) {
    command
        .add_option("--format", options.format,
                    "How the list is written; by default as the ending of --output says, else a\n"
                    "table")
        ->check(CLI::IsMember(partsFormatNames()));
    command
        .add_option("--digits", options.writing.numbers.significantDigits,
                    "Significant digits of numbers whose column names no decimals")
        ->check(CLI::Range(1, 17))
        ->capture_default_str();
    command.add_flag("--decimal-comma", options.writing.numbers.decimalComma,
                     "Write numbers with a comma; CSV then has semicolons between values");
    command
        .add_option("--delimiter", options.writing.delimiter,
                    "The character between the values of CSV")
        ->type_name("CHARACTER");
    command.add_flag("--bom", options.writing.byteOrderMark,
                     "Begin CSV with the byte order mark that Excel needs to find UTF-8");
    command.add_flag("--raw-texts", options.rawTexts,
                     "Leave texts as they are that a spreadsheet would run: without it an\n"
                     "apostrophe marks them in CSV and TSV");
}

/// What the assembly in 3D is like.
void addModel(CLI::App& command, PartsOptions& options) {
    command
        .add_option("--detail", options.detail,
                    "How closely the model of glb and html follows the shapes")
        ->type_name("coarse|normal|fine")
        ->check(CLI::IsMember({"coarse", "normal", "fine"}))
        ->capture_default_str();
    command
        .add_option("--max-triangles", options.writing.model.maximumTriangles,
                    "Triangles of one shape: one that needs more is drawn more coarsely, then as\n"
                    "its box")
        ->type_name("COUNT")
        ->check(CLI::Range(std::size_t{12}, std::size_t{100'000'000}))
        ->capture_default_str();
    command.add_flag("--plain", options.writing.model.isPlain,
                     "Do not compress the model, for readers without extensions of glTF");
}

}  // namespace

void addView(CLI::App& command, PartsOptions& options, const std::string& description) {
    command.add_option("--view", options.view, description)
        ->check(CLI::IsMember({"parts", "indented", "top", "all"}))
        ->capture_default_str();
}

void addMerging(CLI::App& command, PartsOptions& options, const std::string& description) {
    // What is between braces is offered by the completions of shells.
    command.add_option("--merge-by", options.mergeBy, description)
        ->type_name("{part-number,name,component,shape}|COLUMNS")
        ->capture_default_str();
}

void addPartsOptions(CLI::App& command, PartsOptions& options) {
    addContent(command, options);
    addWriting(command, options);
    addModel(command, options);
    addReading(command, options.reading);
}

parts::PartsRequest requestOf(const PartsOptions& options) {
    parts::PartsRequest request;
    request.view = parsed("--view", [&] { return parts::parseView(options.view); });
    request.merging = parsed("--merge-by", [&] { return parts::parseMerging(options.mergeBy); });
    request.units = parsed("--units", [&] { return unitsOf(options); });
    request.columns = parsed("--columns", [&] { return chosenColumns(options); });
    request.filters = parsed("--filter", [&] { return filtersOf(options, request.units); });
    if (!options.sort.empty()) {
        request.sort = parsed("--sort", [&] { return parts::parseSort(options.sort); });
    }
    request.multiply = options.multiply;
    return request;
}

parts::PartsList listOf(const host::DesignData& design, const parts::PartsRequest& request,
                        const parts::PartShapes& shapes) {
    try {
        return parts::buildPartsList(design, request, shapes);
    } catch (const parts::UnknownColumn& error) {
        refuseColumn(error, design);
    } catch (const parts::RequestError& error) {
        refuse(error.what());
    }
}

PartsFormat formatOf(const PartsOptions& options, const std::string& output) {
    PartsFormat format = options.writing;
    format.guardFormulas = !options.rawTexts;
    checkDelimiter(format.delimiter);
    format.isForFile = !output.empty();
    format.model.detail = detailOf(options.detail);
    format.kind = options.format.empty() ? partsFormatOf(output) : parsePartsFormat(options.format);
    return format;
}

std::string columnsHelp() {
    std::string names;
    std::size_t width = 0;
    for (const std::string& name : fieldNames()) {
        constexpr std::size_t kLine = 76;
        const bool isNewLine = names.empty() || width + name.size() + 2 > kLine;
        names += (names.empty() ? "  " : isNewLine ? ",\n  " : ", ") + name;
        width = (isNewLine ? 2 : width + 2) + name.size();
    }
    return "Columns:\n" + names + "\n";
}

}  // namespace workbench
