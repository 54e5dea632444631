#include "workbench/dialogs/edited_list_cells.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/list_items.h"
#include "workbench/output/display_text.h"
#include "workbench/output/reports.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <utility>

namespace workbench {
namespace {

using namespace adsk::core;
using host::TableCell;

constexpr const char* kPathCaption = "Path";
constexpr const char* kPartNumberCaption = "Part Number";

/// Captions that a list may have besides those of its table: they say where a row is.
constexpr const char* kIgnoredCaptions[] = {"", "Pos.", "Level", "Path", "Image", "Tree"};

/// A column of the list with the one of the table that it belongs to.
struct ListColumn {
    std::size_t field = 0;
    BomColumn column;
};

/// Works out the edits, and collects what cannot be applied.
class ListReader {
public:
    ListReader(const BomCells& cells, const EditedList& list) : cells_(cells), list_(list) {}

    std::vector<EditedCell> read() {
        findKey();
        findColumns();
        for (const EditedList::Line& line : list_.lines) {
            readLine(line);
        }
        return edits_;
    }

    [[nodiscard]] const std::vector<std::string>& obstacles() const { return obstacles_; }

private:
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

    void readLine(const EditedList::Line& line) {
        const std::string key = key_ < line.fields.size() ? line.fields[key_] : "";
        const std::vector<BomRow> rows =
            keyIsPath_ ? cells_.rowsOfPath(key) : cells_.rowsOfPartNumber(key);
        if (rows.empty()) {
            report(line.number, std::string("the list has no row of the ") +
                                    (keyIsPath_ ? "path" : "part number") + " \"" + key + "\"");
        }
        for (const BomRow& row : rows) {
            for (const ListColumn& column : columns_) {
                if (column.field < line.fields.size()) {
                    compare(line, row, column.column, line.fields[column.field]);
                }
            }
        }
    }

    void compare(const EditedList::Line& line, const BomRow& row, const BomColumn& column,
                 const std::string& value) {
        const TableCell& cell = cells_.cell(row, column);
        const bool isMeasured = std::ranges::find(kMeasuredProperties, column.property) !=
                                std::end(kMeasuredProperties);
        if (isSame(cell, value, isMeasured)) {
            return;
        }
        if (isMeasured) {
            report(line.number, column.key + " \"" + value +
                                    "\": the add-in works it out, here \"" + cell.text + "\"");
        } else if (cell.editable && checkChoice(line, row, column, value)) {
            add({.source = list_.file + ", line " + std::to_string(line.number),
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
            cell.kind == TableCell::Kind::Choice && cell.text.empty() && value == "n/a";
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

    bool checkChoice(const EditedList::Line& line, const BomRow& row, const BomColumn& column,
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

    /// Two lines that want different things of one cell contradict each other.
    void add(const EditedCell& edit) {
        const auto [before, isNew] =
            byCell_.try_emplace({edit.row.row, edit.column}, edits_.size());
        if (isNew) {
            edits_.push_back(edit);
        } else if (edits_[before->second].value != edit.value) {
            obstacles_.push_back(edit.source + ": " + edit.key + " \"" + edit.value +
                                 "\": " + edits_[before->second].source + " has \"" +
                                 edits_[before->second].value + "\" for the same row");
        }
    }

    void report(std::size_t line, const std::string& obstacle) {
        obstacles_.push_back(list_.file + ", line " + std::to_string(line) + ": " + obstacle);
    }

    const BomCells& cells_;
    const EditedList& list_;
    std::size_t key_ = 0;
    bool keyIsPath_ = false;
    std::vector<ListColumn> columns_;
    std::vector<EditedCell> edits_;
    std::map<std::pair<int, int>, std::size_t> byCell_;
    std::vector<std::string> obstacles_;
};

}  // namespace

void lookUp(const BomCells& cells, const EditedList& list, std::vector<EditedCell>& all) {
    ListReader reader(cells, list);
    const std::vector<EditedCell> edits = reader.read();
    refuseObstacles(ExitCode::BadInput, reader.obstacles());
    all.insert(all.end(), edits.begin(), edits.end());
}

}  // namespace workbench
