#include "workbench/commands/edited_parts_list.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/edited_list.h"

#include "host/base/utf8_path.h"
#include "parts/ascii.h"
#include "parts/formula_guard.h"
#include "parts/number_text.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace workbench {
namespace {

using parts::Field;

/// A caption as an option has it: "Mass [g]" is the column "Mass[g]".
parts::Column columnOf(const std::string& caption) {
    const std::size_t unit = caption.ends_with(']') ? caption.rfind(" [") : std::string::npos;
    std::string text;
    for (const char each : caption.substr(0, unit)) {
        constexpr std::string_view kSpecial = "\\,=[]:";
        text += kSpecial.find(each) == std::string_view::npos ? "" : "\\";
        text += each;
    }
    return parts::parseColumn(unit == std::string::npos ? text : text + caption.substr(unit + 1));
}

/// A text of a spreadsheet without the apostrophe that marks it as such.
std::string withoutMark(const std::string& text) {
    return text.starts_with('\'') && parts::guardedFormula(text.substr(1)) == text ? text.substr(1)
                                                                                   : text;
}

std::optional<std::size_t> indexOf(const parts::PartsRequest& request, Field field) {
    const auto found = std::ranges::find(request.columns, field, &parts::Column::field);
    return found == request.columns.end()
               ? std::nullopt
               : std::optional(static_cast<std::size_t>(found - request.columns.begin()));
}

/// What tells the lines of a list apart. Classes of shapes are in no list.
std::vector<parts::Column> keyColumns(const parts::Merging& merging) {
    switch (merging.by) {
        case parts::MergeBy::Name:
        case parts::MergeBy::Component:
            return {{.field = Field::PartName}};
        case parts::MergeBy::Columns:
            return merging.columns;
        case parts::MergeBy::PartNumber:
        case parts::MergeBy::Shape:
            break;
    }
    return {{.field = Field::PartNumber}};
}

/// What a list may have with a decimal comma.
bool isMeasure(Field field) { return field == Field::Size || parts::infoOf(field).isNumber; }

}  // namespace

bool isEditedPartsList(const std::string& file) {
    const std::string ending = parts::lowerCase(host::toUtf8(host::fromUtf8(file).extension()));
    return ending == ".csv" || ending == ".tsv";
}

EditedPartsList::EditedPartsList(const std::string& file, const parts::PartsRequest& request)
    : request_(request) {
    EditedList list = readEditedList(file);
    list = parseEditedList(list.content, file);
    const std::vector<parts::Column> known = std::move(request_.columns);
    request_.columns.clear();
    for (std::size_t field = 0; field < list.captions.size(); ++field) {
        addColumn(list.captions[field], known);
        fields_.resize(request_.columns.size(), field);
    }
    findKeys(file);
    for (const EditedList::Line& line : list.lines) {
        parts::ComparedLine compared;
        for (const std::size_t field : fields_) {
            compared.cells.emplace_back(
                field < line.fields.size() ? withoutMark(line.fields[field].text) : "");
        }
        compared.item = itemOf(compared.cells);
        lines_.push_back(std::move(compared));
    }
}

void EditedPartsList::findKeys(const std::string& file) {
    for (const parts::Column& key : keyColumns(request_.merging)) {
        const auto found = std::ranges::find_if(request_.columns, [&](const parts::Column& each) {
            return each.field == key.field && each.property == key.property;
        });
        if (found == request_.columns.end()) {
            throw Failure(
                ExitCode::BadInput,
                file + ": has no column \"" + parts::captionOf(key, request_.units) +
                    "\", by which lines are matched; where it has another caption, give --columns "
                    "as the list was written with");
        }
        keys_.push_back(static_cast<std::size_t>(found - request_.columns.begin()));
    }
}

void EditedPartsList::addColumn(const std::string& caption,
                                const std::vector<parts::Column>& known) {
    const auto chosen = std::ranges::find_if(known, [&](const parts::Column& column) {
        return parts::captionOf(column, request_.units) == caption;
    });
    parts::Column column;
    try {
        column = chosen != known.end() ? *chosen : columnOf(caption);
    } catch (const parts::RequestError& error) {
        throw Failure(ExitCode::BadInput, error.what());
    }
    if (!caption.empty() && column.field != Field::Item && column.field != Field::Thumbnail) {
        request_.columns.push_back(std::move(column));
    }
}

std::vector<parts::ComparedLine> EditedPartsList::linesOf(const parts::PartsList& list) const {
    std::vector<parts::ComparedLine> lines;
    for (const parts::PartsRow& row : list.rows) {
        lines.push_back({.item = itemOf(row.cells), .cells = row.cells});
    }
    return lines;
}

std::string EditedPartsList::itemOf(const std::vector<parts::Cell>& cells) const {
    std::string item;
    for (const std::size_t key : keys_) {
        std::string text = parts::cellText(cells[key], {});
        if (isMeasure(request_.columns[key].field)) {
            std::ranges::replace(text, ',', '.');
        }
        item += (item.empty() || text.empty() ? "" : ", ") + text;
    }
    if (item.empty()) {
        const std::optional<std::size_t> name = indexOf(request_, Field::PartName);
        item = name ? parts::cellText(cells[*name], {}) : "";
    }
    return item;
}

}  // namespace workbench
