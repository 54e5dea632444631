#pragma once

#include "tests/tarnix/bom/whole_dialog/plain_design.h"

#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// What the BOM dialog shows and does, written down rule by rule, with every list scanned from its
/// start. The product's dialog is compared with it after each action.
namespace plain {

/// An input in a table.
struct Cell {
    std::string kind;  ///< as `host::InputView` names it
    std::string id;
    std::string caption;
    std::string value;
    std::string picture;
    std::vector<std::pair<std::string, bool>> items;
    bool visible = true;
    bool readOnly = false;
    int serial = 0;  ///< tells cells apart when they move
};

/// A table, its rows as they are, by column.
struct Table {
    int columns = 0;
    std::string ratio;
    std::vector<std::map<int, Cell>> rows;

    /// The cell at a place, null for none.
    Cell* cell(int row, int column);
    [[nodiscard]] int rowCount() const { return static_cast<int>(rows.size()); }
};

enum class Tab { Model, Structure, Configuration };

/// The dialog with what is beside it: the design, the settings, the selection and the export.
class Dialog {
public:
    Design design;
    std::vector<std::string> items;     ///< of the settings, as they are read: "key;caption"
    std::vector<std::string> stored;    ///< of the settings, as they were saved last
    std::vector<std::string> selected;  ///< paths, in the order of selection, each once
    std::string exported;

    Tab tab = Tab::Model;
    Table model;
    Table structure;
    Table configuration;
    bool isRefused = false;   ///< the first host call of the next notification is refused
    bool namesClash = false;  ///< the last write gave a name that another component had
    std::string order;        ///< the chosen one, empty for none
    std::string mass;         ///< the text of the field, empty before it shows

    [[nodiscard]] Table& table(Tab of);

    /// @name Actions; each throws `Thrown` where the add-in does
    /// @{
    void open();
    void show(Tab shown);
    void chooseOrder(const std::string& name);
    void exportTable();
    void save();
    void click(int row, int column);
    void paste(int row, int column, const std::string& text);
    void choose(int row, int column, std::size_t item);
    void accept();
    /// @}

private:
    void addHeader(Table& table, const std::array<std::string, 5>& ids);
    void buildModelTable();
    void addModelRow(const Row& row, const std::string& position);
    std::string nextPosition(const Row& row, const std::string& previousPath, std::string& prefix);
    void buildConfigurationTable();
    void addFreeColumn(int c);
    void loadColumn(int q);
    void addConfigured(std::map<int, Cell>& cells, const Row& row, const std::string& number);
    void fillStructure();
    void addStructureRow(const Row& row, int r, bool isUnderDivided);
    void refreshStructure();
    void changed(const Cell& cell);
    void toggle(const std::string& id);
    void sort(const std::string& id);
    void followUp(const std::string& id, const Cell* dropDown, const Rows& rows);
    void useColumn(int number, const Cell& dropDown);
    void select(const std::string& id, const Rows& rows);
    void selectOnStructure(const Rows& rows, int place);
    void writeRow(const Row& row, int tableRow, int number, int& partNumberColumn);
    void writeOther(const Row& row, const Cell& cell, const std::string& number);
    Cell make(std::string kind, std::string id, std::string caption, std::string value);

    std::vector<std::string> userNames_;  ///< stay from one opening to the next
    int modelRowCounter_ = 1;             ///< likewise
    int serials_ = 0;
};

}  // namespace plain
