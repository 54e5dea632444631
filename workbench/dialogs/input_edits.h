#pragma once

#include "host/session/session.h"

#include <optional>
#include <string>

/// What the user does with inputs of any dialog, given as text.
namespace workbench {

/// A value for an input, or for the cell of a table.
struct InputEdit {
    struct Cell {
        int row = 0;
        int column = 0;

        bool operator==(const Cell&) const = default;
    };

    std::string input;         ///< its id; of a cell: that of the table
    std::optional<Cell> cell;  ///< hidden rows and columns counted, from 0
    std::string value;

    bool operator==(const InputEdit&) const = default;
};

/// Parses INPUT=VALUE or TABLE[ROW,COLUMN]=VALUE. Throws a `Failure` for anything else.
InputEdit parseInputEdit(const std::string& text);

/// Does what leads to the value: pastes a text, chooses an item, makes a check box "true" or
/// "false", clicks a button ("click"), picks the component of a path, selects the row of that
/// number, makes a group "expanded" or "collapsed", shows a tab ("active"). Throws a `Failure` for
/// a value that is not one of the input's kind, and what the session throws for an input that the
/// user cannot use.
void editInput(host::Session& session, const InputEdit& edit);

/// Shows the tab of that id or caption. Throws a `Failure` that lists the tabs where there is none.
void showTab(host::Session& session, const std::string& idOrCaption);

}  // namespace workbench
