#pragma once

#include "host/session/dialog_view.h"
#include "host/session/toolbar_view.h"

#include <string>

/// Dialogs and toolbars for the terminal: an outline with a line for each thing.
namespace workbench {

/// A dialog with everything in it. A line names kind, id, caption and value of an input, and in
/// parentheses what is particular about it. Tables follow with their rows numbered; rows, cells and
/// columns that are hidden are marked.
std::string asText(const host::DialogView& dialog);

/// The workspaces with their tabs, panels and commands, then the commands without a button.
std::string asText(const host::ToolbarView& toolbars);

}  // namespace workbench
