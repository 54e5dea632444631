#include "workbench/output/text_table.h"

#include "workbench/output/display_text.h"

#include <algorithm>

namespace workbench {
namespace {

constexpr std::size_t kGap = 2;
constexpr std::size_t kNarrowest = 8;          // of a column of words
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

void TextTable::alignLeft(std::size_t column) { words_.insert(column); }

TextTable::Column TextTable::measure(std::size_t column) const {
    const std::size_t caption = displayWidth(captions_[column]);
    std::size_t width = caption;
    bool anyNumber = false;
    bool anyOther = false;
    for (const std::vector<std::string>& row : rows_) {
        width = std::max(width, displayWidth(row[column]));
        if (!row[column].empty()) {
            (looksLikeNumber(row[column]) ? anyNumber : anyOther) = true;
        }
    }
    const bool rightAligned = anyNumber && !anyOther && !words_.contains(column);
    const std::size_t least = rightAligned ? width : std::max(caption, kNarrowest);
    return {width, std::min(width, least), rightAligned};
}

/// Takes columns off the widest that can do without, until the line is no wider than that.
void TextTable::narrow(std::vector<Column>& columns, std::size_t width) {
    std::size_t total = kGap * (columns.size() - 1);
    for (const Column& column : columns) {
        total += column.width;
    }
    const auto spareWidth = [](const Column& each) {
        return each.width > each.least ? each.width : 0;
    };
    while (total > width) {
        Column& widest = *std::ranges::max_element(columns, {}, spareWidth);
        if (spareWidth(widest) == 0) {
            break;
        }
        --widest.width;
        --total;
    }
}

std::string TextTable::line(const std::vector<std::string>& cells,
                            const std::vector<Column>& columns) {
    std::string result;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::string cell = fitted(cells[i], columns[i].width);
        const std::size_t padding = columns[i].width - displayWidth(cell);
        result.append(i == 0 ? 0 : kGap, ' ');
        result.append(columns[i].rightAligned ? padding : 0, ' ');
        result.append(cell);
        result.append(columns[i].rightAligned ? 0 : padding, ' ');
    }
    return result;
}

std::string TextTable::rule(std::size_t width) const {
    std::string rule;
    for (std::size_t column = 0; column < width; ++column) {
        rule += charset_ == console::Charset::Utf8 ? kRule : "-";
    }
    return rule;
}

std::string TextTable::text(std::size_t indent, std::size_t width) const {
    std::vector<Column> columns;
    for (std::size_t i = 0; i < captions_.size(); ++i) {
        columns.push_back(measure(i));
    }
    narrow(columns, width - std::min(width, indent));
    std::vector<std::string> rules;
    for (const Column& column : columns) {
        rules.push_back(rule(column.width));
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
