#include "tarnix/bom/model/row_positions.h"

#include "tarnix/text/numbers.h"
#include "tarnix/text/positions.h"
#include "tarnix/text/utf8.h"

namespace tarnix {
namespace {

/// `position` up to its `count`-th "."; whole where it has fewer.
std::string upToPoint(const std::string& position, int count) {
    std::size_t point = position.find('.');
    for (int passed = 1; passed < count && point != std::string::npos; ++passed) {
        point = position.find('.', point + 1);
    }
    return position.substr(0, point);
}

}  // namespace

int modelRowCounter = 1;

std::string RowPositions::next(const BomRow& row, const std::string& previousPathName) {
    if (row.relativePosition.empty()) {
        prefix_.clear();
        return decimal(modelRowCounter);
    }
    --modelRowCounter;
    std::string position;
    if (prefix_.empty()) {
        position = decimal(modelRowCounter) + row.relativePosition;
    } else {
        if (previousPathName == kSubtreeEnd) {
            prefix_ = upToPoint(prefix_, row.level - 1);
        }
        position = prefix_ + row.relativePosition;
    }
    if (row.childCount > 0) {
        prefix_ = position;
    }
    return position;
}

void RowPositions::finishRow() { ++modelRowCounter; }

std::string graphPosition(const std::string& position) {
    const int depth = positionDepth(position);
    std::wstring drawing;
    for (int level = 0; level < depth; ++level) {
        drawing += L"\u2591    ";
    }
    if (depth > 0) {
        drawing += L"\u251C\u2500\u2500";
    }
    return toUtf8(drawing);
}

}  // namespace tarnix
