#pragma once

#include "tests/tarnix/bom/whole_dialog/plain_design.h"

#include <array>
#include <map>
#include <optional>
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
    bool namesClash = false;  ///< the last write gave a name that another component had
    std::string order;        ///< the chosen one, empty for none
    std::string mass;         ///< the text of the field
    bool massShown = false;

    /// The host calls of an action, `calls.begin` before it.
    Calls calls;

    std::vector<std::string> userNames;  ///< stay from one opening to the next
    int modelRowCounter = 1;             ///< likewise

    [[nodiscard]] Table& table(Tab of);

    /// Goes on from a table that was made otherwise.
    void adopt(Tab of, Table made);

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
    /// The rows of the open design; none where the design is not found, and the action ends.
    std::optional<Rows> begin(const std::string& argument);
    bool hasDesign();

    void setVisible(Table& table, int row, int firstColumn, int lastColumn, bool visible);
    bool isVisible(const Cell& cell);
    void setValue(Cell& cell, const std::string& value);
    std::string valueOf(const Cell& cell);
    std::string fieldOf(const Cell& cell);
    void writeExport(Table& table);
    void readColumns();

    void hideWithChildren(Table& table, int row);
    void collapse(Table& table, int row, bool showChildren);
    void markParent(Table& table, int row, bool isAtTop, bool showChildren);
    Cell& showRow(Table& table, int row, bool visible);
    void addSelection(const std::string& path);
    void passSelections();
    void clearSelection();
    void setAttribute(Component& component, const std::string& name, const std::string& value);
    void setPartNumber(Component& component, const std::string& value);
    void setDescription(Component& component, const std::string& value);

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
    bool refreshStructure();  ///< false where the design is not found
    void changed(const Cell& cell);
    void follow(const std::string& id, const Cell* dropDown, const Rows& rows);
    void toggle(const std::string& id);
    void sort(const std::string& id);
    void followUp(const std::string& id, const Cell* dropDown, const Rows& rows);
    void useColumn(int number, const Cell& dropDown);
    void select(const std::string& id, const Rows& rows);
    void selectOnStructure(const Rows& rows, int place);
    void writeRow(const Row& row, int tableRow, int number, int& partNumberColumn);
    void writeOther(const Row& row, const Cell& cell, const std::string& number);
    Cell make(std::string kind, std::string id, std::string caption, std::string value);

    int serials_ = 0;
};

}  // namespace plain
