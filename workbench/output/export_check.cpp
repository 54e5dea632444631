#include "workbench/output/export_check.h"

#include <algorithm>
#include <cstddef>

namespace workbench {
namespace {

/// A line feed in a cell makes a further line of the file.
std::size_t lineFeedsIn(const BomList& list) {
    std::ptrdiff_t count = 0;
    for (const std::vector<std::string>& row : list.rows) {
        for (const std::string& cell : row) {
            count += std::ranges::count(cell, '\n');
        }
    }
    return static_cast<std::size_t>(count);
}

}  // namespace

std::string whyIncomplete(const std::string& exported, const BomList& list,
                          const std::string& end) {
    if (list.rows.empty()) {
        return "";
    }
    if (exported.empty()) {
        return "the add-in exported nothing: is the disk full?";
    }
    constexpr std::size_t kOtherLines = 3;  // captions, an empty line, and the total mass
    const std::size_t expected = list.rows.size() + kOtherLines + lineFeedsIn(list);
    const auto lines = static_cast<std::size_t>(std::ranges::count(exported, '\n'));
    if (lines == expected && exported.ends_with(end)) {
        return "";
    }
    return "the export is incomplete: it has " + std::to_string(lines) + " of " +
           std::to_string(expected) + " lines; is the disk full?";
}

}  // namespace workbench
