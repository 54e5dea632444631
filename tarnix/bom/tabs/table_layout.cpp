#include "tarnix/bom/tabs/table_layout.h"

#include <algorithm>

namespace tarnix {
namespace {

/// `ratio` with a width for each of `shown` columns, and none for those after them up to `slots`.
std::string withColumns(std::string ratio, std::size_t shown, std::size_t slots) {
    for (std::size_t column = 0; column < shown || column < slots; ++column) {
        ratio += column < shown ? ":8" : ":0";
    }
    return ratio;
}

}  // namespace

std::string extendColumnRatio(const std::string& ratio, std::size_t n) {
    constexpr std::size_t kColumns = 12;
    return withColumns(ratio, n, kColumns - kFixedColumns);
}

std::string elevenColumnRatio(const std::string& tableId, std::size_t n) {
    std::string fixed;
    for (const RowTable* rows : {&kStructureRows, &kModelRows}) {
        if (tableId == rows->tableId) {
            fixed = rows->fixedRatio;
        }
    }
    return withColumns(fixed, std::min<std::size_t>(n, kConfigurableColumns), kConfigurableColumns);
}

}  // namespace tarnix
