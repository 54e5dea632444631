#include "tests/tarnix/bom/behaviour/reference_sorting.h"

#include "tarnix/text/checked.h"

#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace reference {

using namespace adsk::core;

namespace {

using Rows = std::vector<std::vector<Ptr<CommandInput>>>;

std::string tailOf(const std::string& id) { return id.substr(id.rfind('_') + 1); }

template <class Key>
struct Less {
    bool operator()(const std::pair<Key, std::string>& a,
                    const std::pair<Key, std::string>& b) const {
        if (a.first < b.first) return true;
        if (b.first < a.first) return false;
        return a.second < b.second;
    }
};

bool textOf(const Ptr<CommandInput>& cell, std::string& text) {
    if (const Ptr<DropDownCommandInput> dropDown = cell) {
        text = dropDown->selectedItem()->name();
    } else if (const Ptr<BoolValueCommandInput> button = cell) {
        text = button->name();
    } else if (const Ptr<StringValueCommandInput> field = cell) {
        text = field->value();
    } else {
        return false;
    }
    return true;
}

template <class Key>
void sortBy(const Ptr<TableCommandInput>& table, const Rows& allRows, std::size_t column,
            const std::string& orderText, Key (*keyOf)(const std::string&)) {
    std::map<std::string, Key> keys;
    for (const auto& row : allRows) {
        std::string text;
        if (textOf(tarnix::at(row, column), text)) keys[row[column]->id()] = keyOf(text);
    }
    std::set<std::pair<Key, std::string>, Less<Key>> pairs;
    for (const auto& [id, key] : keys) pairs.insert({key, id});
    std::vector<std::string> ids;
    for (const auto& pair : pairs) {
        if (orderText == "Ascending") ids.push_back(pair.second);
        if (orderText == "Descending") ids.insert(ids.begin(), pair.second);
    }
    Rows sortedRows;
    for (const std::string& id : ids) {
        for (const auto& row : allRows) {
            if (row[column]->id() == id) sortedRows.push_back(row);
        }
    }
    for (const auto& row : sortedRows) {
        const int rowCount = table->rowCount();
        for (std::size_t i = 0; i < row.size(); ++i) {
            table->addCommandInput(row[i], rowCount, static_cast<int>(i), 0, 0);
        }
    }
}

std::string same(const std::string& text) { return text; }

/// As the library reads it; what it throws is named as every compiler's is in the add-in.
double number(const std::string& text) {
    try {
        return std::stod(text);
    } catch (const std::invalid_argument&) {
        throw std::invalid_argument("invalid stod argument");
    } catch (const std::out_of_range&) {
        throw std::out_of_range("stod argument out of range");
    }
}

bool isNumeric(const Rows& rows, std::size_t column) {
    bool any = false;
    for (const auto& row : rows) {
        const Ptr<StringValueCommandInput> field = tarnix::at(row, column);
        if (field) any = number(field->value()) != 0.0 || any;
    }
    return any;
}

}  // namespace

void sortStructureTable(const Ptr<TableCommandInput>& table, const Ptr<CommandInput>& input,
                        const std::string& orderText) {
    Rows allRows;
    for (int r = 0; r < table->rowCount(); ++r) {
        std::vector<Ptr<CommandInput>> row;
        for (int c = 0; c <= table->numberOfColumns(); ++c) {
            const Ptr<CommandInput> cell = table->getInputAtPosition(r, c);
            if (cell && tailOf(cell->id()) != "0") row.push_back(cell);
        }
        if (!row.empty()) allRows.push_back(row);
    }
    const std::string prefix = input->id().substr(0, input->id().rfind('_'));
    std::size_t column = 0;
    const auto& first = tarnix::at(allRows, 0);
    for (std::size_t i = first.size(); i-- > 0;) {
        if (first[i]->id().find(prefix) != std::string::npos) column = i;
    }
    if (column == 0 || column == 2) return;
    if (column == 1 || (column >= 5 && isNumeric(allRows, column))) {
        sortBy<double>(table, allRows, column, orderText, number);
    } else {
        sortBy<std::string>(table, allRows, column, orderText, same);
    }
}

}  // namespace reference
