#pragma once

#include "tests/fuzz/choices.h"

#include "host/session/session.h"

#include <Core/CoreAll.h>

/// What a user who acts at random does in a dialog.
namespace fuzz {

/// The table of the tab that the BOM dialog shows; null where none does.
adsk::core::Ptr<adsk::core::TableCommandInput> shownTable(const host::Session& session);

/// Does with an input what its kind is for, where the screen offers it.
void actOn(const adsk::core::Ptr<adsk::core::CommandInput>& input, Choices& choices);

/// Does something with a cell of the table that shows.
void actInTable(const host::Session& session, Choices& choices);

/// Uses one of the inputs beside the tables.
void actBesideTables(const host::Session& session, Choices& choices);

/// Shows a tab, where the dialog has one of that id.
void showTab(host::Session& session, const char* id);

/// Shows one of the tabs.
void changeTab(host::Session& session, Choices& choices);

}  // namespace fuzz
