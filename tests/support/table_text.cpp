#include "tests/support/table_text.h"

#include "host/session/table_view.h"

#include <algorithm>
#include <vector>

namespace test_support {
namespace {

using namespace adsk::core;
using Lines = std::vector<std::vector<std::string>>;

constexpr int kPictureColumn = 0;
constexpr int kPositionColumn = 1;
constexpr int kNumberColumn = 3;
constexpr int kFirstConfigured = 5;

/// One character in UTF-8 counts once; the tests' texts have neither wide nor combining ones.
std::size_t width(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80;
    }));
}

/// Lines with " | " between their texts, which are as wide as the widest below each other.
std::string aligned(const Lines& lines) {
    std::vector<std::size_t> widths;
    for (const auto& line : lines) {
        widths.resize(std::max(widths.size(), line.size()));
        for (std::size_t i = 0; i < line.size(); ++i) {
            widths[i] = std::max(widths[i], width(line[i]));
        }
    }
    std::string result;
    for (const auto& line : lines) {
        std::string joined;
        for (std::size_t i = 0; i < line.size(); ++i) {
            const std::string padding(widths[i] - width(line[i]), ' ');
            joined += (i == 0 ? "" : " | ") + line[i] + padding;
        }
        joined.erase(joined.find_last_not_of(' ') + 1);
        result += (result.empty() ? "" : "\n") + joined;
    }
    return result;
}

std::string shownText(const host::TableCell& cell) {
    return cell.text.empty() ? cell.picture : cell.text;
}

}  // namespace

std::string bomText(const Ptr<TableCommandInput>& table) {
    Lines lines;
    for (const host::TableRow& row : host::readTable(table).rows) {
        if (row.row == 0) continue;
        lines.push_back({host::readCell(table, row.row, kPositionColumn).text,
                         host::readCell(table, row.row, kPictureColumn).picture,
                         host::readCell(table, row.row, kNumberColumn).text});
        for (const host::TableCell& cell : row.cells) {
            if (cell.column >= kFirstConfigured) lines.back().push_back(shownText(cell));
        }
    }
    return aligned(lines);
}

std::string tableText(const Ptr<TableCommandInput>& table) {
    Lines lines;
    for (const host::TableRow& row : host::readTable(table).rows) {
        lines.emplace_back();
        for (const host::TableCell& cell : row.cells) lines.back().push_back(shownText(cell));
    }
    return aligned(lines);
}

}  // namespace test_support
