#pragma once

#include "host/session/dialog_view.h"
#include "host/session/toolbar_view.h"

#include <string>

/// Dialogs and toolbars as JSON, with the members of the views.
namespace workbench {

/// One object, indented, with a line feed at its end. Members that an input of its kind cannot have
/// are left out; the value of a button or check box is a boolean.
std::string asJson(const host::DialogView& dialog);

/// One object, indented, with a line feed at its end.
std::string asJson(const host::ToolbarView& toolbars);

}  // namespace workbench
