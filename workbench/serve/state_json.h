#pragma once

#include "workbench/serve/addin_pictures.h"
#include "workbench/serve/json.h"

#include "host/design/design_data.h"
#include "host/session/dialog_answers.h"
#include "host/session/dialog_view.h"
#include "host/session/screen_view.h"
#include "host/session/toolbar_view.h"

#include <vector>

/// What the host shows, as docs/protocol.md describes it.
namespace workbench::serve {

/// `workspaces` of the state.
Json workspacesJson(const host::ToolbarView& toolbars, AddinPictures& pictures);

/// A list of commands, as controls.
Json controlsJson(const std::vector<host::ControlView>& controls, AddinPictures& pictures);

Json treeJson(const host::DesignData& design);

/// A dialog whose tables have no windows.
Json dialogJson(const host::DialogView& dialog, AddinPictures& pictures);

/// `rows` of a table's window.
Json rowsJson(const std::vector<host::RowView>& rows, AddinPictures& pictures);

Json messageJson(int id, const host::Message& message);
Json fileDialogJson(int id, const host::FileDialogShown& dialog, const std::string& folder);
Json progressJson(const host::Progress& progress);
Json palettesJson(const std::vector<host::PaletteView>& palettes);

}  // namespace workbench::serve
