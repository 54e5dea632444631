#include "tarnix/bom/behaviour/row_numbering.h"

#include "tarnix/bom/behaviour/open_dialog.h"
#include "tarnix/bom/tabs/table_layout.h"
#include "tarnix/text/checked.h"
#include "tarnix/text/numbers.h"
#include "tarnix/text/positions.h"

#include <cstddef>

namespace tarnix {

using namespace adsk::core;

namespace {

/// The number that `text` begins with, moved on by `step`.
std::string counted(const std::string& text, int step) {
    return std::to_string(static_cast<long long>(parseInt(text)) + step);
}

/// How a number looks in a text box: white on white, the underscores are an invisible indent.
std::string positionHtml(const std::string& number) {
    const std::string indent(static_cast<std::size_t>(positionDepth(number)), '_');
    std::string html = "<p>";
    if (!indent.empty()) {
        html += "<span style=\"color:#FFFFFF\">" + indent + "</span>";
    }
    return html + "<span style=\"color:#000000\"><b>" + number + "</b></span></p>";
}

}  // namespace

const std::string& RowNumbers::nextTop() {
    current_ = std::to_string(counter_);
    last_ = current_;
    ++counter_;
    return current_;
}

const std::string& RowNumbers::nextNested(const Place& place) {
    const int depth = positionDepth(place.position);
    if (depth > place.previousDepth) {
        current_ = last_ + "." + std::to_string(depth - place.previousDepth);
    } else if (depth == place.previousDepth) {
        current_ = numberBesideEqual();
    } else {
        current_ = numberAfterDeeper(place, depth);
    }
    last_ = current_;
    return current_;
}

std::string RowNumbers::numberBesideEqual() const {
    const std::size_t dot = last_.rfind('.');
    if (dot == std::string::npos) {
        return last_ + ".1";
    }
    return last_.substr(0, dot + 1) + counted(last_.substr(dot + 1), 1);
}

std::string RowNumbers::numberAfterDeeper(const Place& place, int depth) const {
    const std::string& position = place.position;
    const std::size_t dot = position.rfind('.');
    if (depth == place.nextDepth) {
        return current_;
    }
    if (depth > place.nextDepth) {
        return position.substr(0, dot) + "." + counted(position.substr(dot + 1), -1);
    }
    if (last_.size() == 1) {
        return last_ + ".1";
    }
    // The dot is looked for in the row's own position and then taken for a place in the last
    // number.
    const std::string part = substringFrom(last_.substr(0, position.size()), dot + 1);
    return last_.substr(0, dot + 1) + counted(part, 1);
}

void renumberVisibleRows(Ptr<TableCommandInput> table) {
    RowNumbers numbers;
    const int rowCount = table->rowCount();
    for (int row = 1; row < rowCount; ++row) {
        RowNumbers::Place place;
        place.position = positionOfRow(table, row);
        const int depth = positionDepth(place.position);
        if (!table->getInputAtPosition(row, kIconColumn)->isVisible()) {
            continue;
        }
        std::string number;
        if (depth == 0) {
            number = numbers.nextTop();
        } else {
            place.previousDepth = positionDepth(positionOfRow(table, row - 1));
            place.nextDepth =
                row + 1 < rowCount ? positionDepth(positionOfRow(table, row + 1)) : depth;
            number = numbers.nextNested(place);
        }
        const Ptr<TextBoxCommandInput> textBox = table->getInputAtPosition(row, kPositionColumn);
        if (textBox) {
            textBox->formattedText(positionHtml(number));
        }
    }
}

}  // namespace tarnix
