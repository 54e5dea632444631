#include "workbench/dialogs/edited_list_cells.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/list_items.h"
#include "workbench/output/display_text.h"
#include "workbench/output/reports.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace workbench {
namespace {

using namespace adsk::core;
using host::TableCell;

constexpr const char* kPathCaption = "Path";
constexpr const char* kPartNumberCaption = "Part Number";

/// What the export writes where nothing is chosen.
constexpr const char* kUnchosen = "n/a";

/// Captions that a list may have besides those of its table: they say where a row is.
constexpr const char* kIgnoredCaptions[] = {"", "Pos.", "Level", "Path", "Image", "Tree"};

/// A column of the list with the one of the table that it belongs to.
struct ListColumn {
    std::size_t field = 0;
    BomColumn column;
};

/// The lines of the export of a table.
std::vector<std::string> exportedLines(const BomCells& cells) {
    std::vector<std::string> lines;
    for (const BomRow& row : cells.printedRows()) {
        std::string line;
        for (const TableCell& cell : cells.exportedCells(row)) {
            const bool isUnchosen = cell.kind == TableCell::Kind::Choice && cell.text.empty();
            line += (isUnchosen ? std::string(kUnchosen) : cell.text) + ";";
        }
        lines.push_back(line);
    }
    return lines;
}

/// Works out the edits, and collects what cannot be applied.
class ListReader {
public:
    ListReader(const BomCells& cells, const EditedList& list)
        : cells_(cells), list_(parseEditedList(list.content, list.file, exportedLines(cells))) {}

    std::vector<EditedCell> read() {
        const auto isEdited = [](const Line& line) { return !line.known; };
        if (std::ranges::none_of(list_.lines, isEdited)) {
            return {};
        }
        findKey();
        findColumns();
        findRows();
        for (const auto& [line, row] : rowOfLine_) {
            readLine(*line, *row);
        }
        return edits_;
    }

    /// By the lines of the file.
    [[nodiscard]] std::vector<std::string> obstacles() const {
        std::vector<std::string> all;
        for (const auto& [line, obstacle] : obstacles_) {
            all.push_back(list_.file + ", line " + std::to_string(line) + ": " + obstacle);
        }
        return all;
    }

private:
    using Line = EditedList::Line;

    /// Lines and rows that are called the same, but for those that belong together already.
    struct Namesakes {
        std::vector<const Line*> lines;
        std::vector<const BomRow*> rows;
    };

    void findKey() {
        for (const char* const caption : {kPathCaption, kPartNumberCaption}) {
            const auto found = std::ranges::find(list_.captions, caption);
            if (found != list_.captions.end()) {
                key_ = static_cast<std::size_t>(found - list_.captions.begin());
                keyIsPath_ = caption == kPathCaption;
                return;
            }
        }
        throw Failure(ExitCode::BadInput,
                      list_.file + ": has neither a column \"Part Number\" nor a column \"Path\"");
    }

    void findColumns() {
        std::map<std::string, int> seen;
        for (std::size_t field = 0; field < list_.captions.size(); ++field) {
            const std::string& caption = list_.captions[field];
            // A caption that is there again has a number in the names of the table's columns.
            const int count = ++seen[caption];
            const std::string name = count == 1 ? caption : caption + " " + std::to_string(count);
            if (const std::optional<BomColumn> column = cells_.columnNamed(name)) {
                columns_.push_back({.field = field, .column = *column});
            } else if (std::ranges::find(kIgnoredCaptions, caption) == std::end(kIgnoredCaptions)) {
                report(1, "the list has no column \"" + caption + "\"");
            }
        }
    }

    [[nodiscard]] std::string keyOf(const Line& line) const {
        return key_ < line.fields.size() ? line.fields[key_].text : "";
    }

    /// Lines that were not edited have found their rows; the others take the ones that are left.
    void findRows() {
        std::set<std::size_t> taken;
        std::map<std::string, Namesakes> byKey;
        for (const Line& line : list_.lines) {
            if (line.known) {
                taken.insert(*line.known);
            } else if (checkFields(line)) {
                byKey[keyOf(line)].lines.push_back(&line);
            }
        }
        const std::vector<BomRow>& rows = cells_.printedRows();
        for (std::size_t index = 0; index < rows.size(); ++index) {
            const std::string key =
                keyIsPath_ ? cells_.pathOf(rows[index]) : cells_.partNumberOf(rows[index]);
            const auto found = byKey.find(key);
            if (found != byKey.end() && !taken.contains(index)) {
                found->second.rows.push_back(&rows[index]);
            }
        }
        for (const auto& [key, namesakes] : byKey) {
            pair(key, namesakes);
        }
        std::ranges::sort(rowOfLine_, {}, [](const auto& each) { return each.first->number; });
    }

    void pair(const std::string& key, const Namesakes& namesakes) {
        const auto& [lines, rows] = namesakes;
        const std::string named =
            std::string(keyIsPath_ ? "path" : "part number") + " \"" + key + "\"";
        if (rows.empty()) {
            report(lines.front()->number, "the list has no row of the " + named);
        } else if (lines.size() != rows.size()) {
            report(lines.front()->number, counted(lines.size(), "line") + " of the " + named +
                                              " for " + counted(rows.size(), "row") +
                                              "; a line for each is needed, or a column \"Path\"");
        } else {
            for (std::size_t i = 0; i < lines.size(); ++i) {
                rowOfLine_.emplace_back(lines[i], rows[i]);
            }
        }
    }

    static std::string counted(std::size_t count, const std::string& what) {
        return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
    }

    /// A separator in a value that has no quotes moves the fields after it.
    bool checkFields(const Line& line) {
        const bool fits = line.fields.size() <= list_.captions.size();
        if (!fits) {
            report(line.number, "has " + std::to_string(line.fields.size()) + " fields for " +
                                    std::to_string(list_.captions.size()) +
                                    " captions; a value with a separator in it needs quotes");
        }
        return fits;
    }

    void readLine(const Line& line, const BomRow& row) {
        for (const ListColumn& column : columns_) {
            if (column.field < line.fields.size()) {
                compare(line, row, column.column, line.fields[column.field]);
            }
        }
    }

    void compare(const Line& line, const BomRow& row, const BomColumn& column,
                 const EditedList::Field& field) {
        const std::string& value = field.text;
        const TableCell& cell = cells_.cell(row, column);
        const bool isMeasured = std::ranges::find(kMeasuredProperties, column.property) !=
                                std::end(kMeasuredProperties);
        if (field.raw == cell.text || isSame(cell, value, isMeasured)) {
            return;
        }
        if (isMeasured) {
            report(line.number, column.key + " \"" + value +
                                    "\": the add-in works it out, here \"" + cell.text + "\"");
        } else if (cell.editable && checkChoice(line, row, column, value)) {
            edits_.push_back({.source = list_.file + ", line " + std::to_string(line.number),
                              .row = row,
                              .column = column.column,
                              .key = column.key,
                              .property = column.property,
                              .value = value});
        }
    }

    /// A spreadsheet may have changed how a number is written, and the export writes "n/a" where
    /// nothing is chosen.
    static bool isSame(const TableCell& cell, const std::string& value, bool isMeasured) {
        const bool isUnchosen =
            cell.kind == TableCell::Kind::Choice && cell.text.empty() && value == kUnchosen;
        return value == cell.text || isUnchosen ||
               (isMeasured && canonical(value) == canonical(cell.text));
    }

    /// A number without what has no meaning in it; any other string as it is.
    static std::string canonical(std::string number) {
        std::ranges::replace(number, ',', '.');
        if (!looksLikeNumber(number) || number.find('.') == std::string::npos) {
            return number;
        }
        number.erase(number.find_last_not_of('0') + 1);
        number.erase(number.find_last_not_of('.') + 1);
        return number;
    }

    bool checkChoice(const Line& line, const BomRow& row, const BomColumn& column,
                     const std::string& value) {
        const Ptr<DropDownCommandInput> choice = cells_.input(row, column.column);
        const std::vector<std::string> names = itemNames(choice ? choice->listItems() : nullptr);
        const bool isThere = !choice || std::ranges::find(names, value) != names.end();
        if (!isThere) {
            report(line.number,
                   column.key + " \"" + value + "\": no such choice; available: " + quoted(names));
        }
        return isThere;
    }

    void report(std::size_t line, const std::string& obstacle) {
        obstacles_.emplace(line, obstacle);
    }

    const BomCells& cells_;
    const EditedList list_;
    std::size_t key_ = 0;
    bool keyIsPath_ = false;
    std::vector<ListColumn> columns_;
    std::vector<EditedCell> edits_;
    std::vector<std::pair<const Line*, const BomRow*>> rowOfLine_;
    std::multimap<std::size_t, std::string> obstacles_;
};

}  // namespace

void lookUp(const BomCells& cells, const EditedList& list, std::vector<EditedCell>& all) {
    ListReader reader(cells, list);
    const std::vector<EditedCell> edits = reader.read();
    refuseObstacles(ExitCode::BadInput, reader.obstacles());
    all.insert(all.end(), edits.begin(), edits.end());
}

}  // namespace workbench
