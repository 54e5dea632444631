#include "workbench/output/text_table.h"

#include "workbench/output/display_text.h"

#include <algorithm>

namespace workbench {
namespace {

constexpr std::size_t kGap = 2;
constexpr const char* kRule = "\xE2\x94\x80";  // U+2500

std::string withoutTrailingSpaces(std::string line) {
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

}  // namespace

TextTable::TextTable(const std::vector<std::string>& captions, console::Charset charset)
    : charset_(charset) {
    for (const std::string& caption : captions) {
        captions_.push_back(printable(caption));
    }
}

void TextTable::add(const std::vector<std::string>& cells) {
    std::vector<std::string> row(captions_.size());
    for (std::size_t i = 0; i < std::min(row.size(), cells.size()); ++i) {
        row[i] = printable(cells[i]);
    }
    rows_.push_back(std::move(row));
}

TextTable::Column TextTable::measure(std::size_t column) const {
    std::size_t width = displayWidth(captions_[column]);
    bool anyNumber = false;
    bool anyOther = false;
    for (const std::vector<std::string>& row : rows_) {
        width = std::max(width, displayWidth(row[column]));
        if (!row[column].empty()) {
            (looksLikeNumber(row[column]) ? anyNumber : anyOther) = true;
        }
    }
    return {width, anyNumber && !anyOther};
}

std::string TextTable::line(const std::vector<std::string>& cells,
                            const std::vector<Column>& columns) {
    std::string result;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::size_t padding = columns[i].width - displayWidth(cells[i]);
        result.append(i == 0 ? 0 : kGap, ' ');
        result.append(columns[i].rightAligned ? padding : 0, ' ');
        result.append(cells[i]);
        result.append(columns[i].rightAligned ? 0 : padding, ' ');
    }
    return result;
}

std::string TextTable::text(std::size_t indent) const {
    std::vector<Column> columns;
    std::vector<std::string> rules;
    for (std::size_t i = 0; i < captions_.size(); ++i) {
        columns.push_back(measure(i));
        std::string rule;
        for (std::size_t width = 0; width < columns.back().width; ++width) {
            rule += charset_ == console::Charset::Utf8 ? kRule : "-";
        }
        rules.push_back(rule);
    }
    const std::string margin(indent, ' ');
    std::string result = withoutTrailingSpaces(margin + line(captions_, columns)) + "\n";
    result += withoutTrailingSpaces(margin + line(rules, columns)) + "\n";
    for (const std::vector<std::string>& row : rows_) {
        result += withoutTrailingSpaces(margin + line(row, columns)) + "\n";
    }
    return result;
}

}  // namespace workbench
