#pragma once

#include "tests/support/addin_test.h"
#include "tests/support/refusal.h"
#include "tests/support/written_strings.h"

#include "host/session/session.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace refusal {

using test_support::kModelTab;
using test_support::kModelTable;
using test_support::kStructureTab;
using test_support::kStructureTable;
using Texts = std::vector<std::string>;

/// What the dialog's table, the design and the settings held before a flow of the open BOM dialog.
///
/// Whichever host call of the flow is refused: what was written stays written, and neither the
/// design nor the settings get a text that no cell held, or half of one.
class DialogBefore {
public:
    DialogBefore(const host::Session& session, const char* tableId);

    void expectDesignAsBefore(const host::Session& session) const;
    void expectSettingsAsBefore(const host::Session& session) const;

    /// The cells of a table still hold what they held, except those whose ids contain `leftOut`;
    /// whether they show, and in which order, is not checked.
    void expectCellsAsBefore(const host::Session& session, const char* tableId,
                             const std::string& leftOut) const;

    /// The design holds texts of the table, and no others but those that it had.
    void expectNothingStrange(const host::Session& session) const;

private:
    std::string design_;
    std::string settings_;
    Texts cells_;
    test_support::WrittenStrings written_;
};

/// Opens the dialog on a design with columns of that key and caption, and shows a tab.
void showDialog(host::Session& session, const char* outline, const Texts& columns, const char* tab);

void expectOneOf(const std::string& text, const Texts& texts);

/// The value of a text field of the dialog.
std::string valueOf(const host::Session& session, const std::string& id);

std::string settingsOf(const host::Session& session);

using Steps = void (*)(host::Session&);
using DialogCheck = void (*)(const host::Session&, const DialogBefore&);

/// Refuses each call of `flow`, which begins where `prepare` leaves the dialog; nothing but known
/// exceptions may be thrown.
test_support::RefusalSweep dialogSweep(const char* tableId, Steps prepare, Steps flow,
                                       DialogCheck check);

}  // namespace refusal
