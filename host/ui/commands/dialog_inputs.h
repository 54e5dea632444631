#pragma once

#include "host/ui/host_setup.h"
#include "host/ui/inputs/input_state.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <string>

namespace host::ui {

class CommandRunner;

/// What goes on between the running command and its inputs while its dialog is open: reports
/// changes to its handlers, has them validate the inputs, and shows previews.
class DialogInputs {
public:
    DialogInputs(CommandRunner& runner, CodeChanges codeChanges)
        : runner_(runner), codeChanges_(codeChanges) {}

    /// A command is being created: nothing is invalid or previewed yet.
    void begin();

    /// The running command has ended: changes that were not reported yet are dropped.
    void end() { codeChanged_.clear(); }

    /// Moves what was selected before the command started into its selections, as if it were picked
    /// now.
    void takeCurrentSelections();

    /// Reports a change of an input, and then the changes that handlers made meanwhile. Throws a
    /// `MisuseError` when these do not end.
    void notifyChanged(InputState& input);

    /// Notes that code set an input's value or selected an item of its list. What the host setup
    /// reports of that is reported after the running notification.
    void changedByCode(InputState& input, CodeChange what);

    /// Has the handlers validate the inputs, and preview the command where it can be accepted.
    void validateAndPreview();

    /// Undoes what the last preview did.
    void takeBackPreview();

    /// Whether what the last preview did is in the model.
    [[nodiscard]] bool showsPreview() const { return previewed_.has_value(); }

    /// Keeps what the last preview did where it can take the place of the execution; false where an
    /// execution is needed.
    bool acceptPreview();

    /// Why the dialog cannot be accepted; empty where it can: all its selections are made and no
    /// handler finds the inputs invalid.
    [[nodiscard]] std::string whyInvalid() const;

private:
    void notifyInputChanged(InputState& input);
    void notifyCodeChanges();
    void validate();
    void preview();
    void dropInvalidPicks();

    CommandRunner& runner_;
    CodeChanges codeChanges_;
    std::deque<core::Ptr<core::CommandInput>> codeChanged_;
    std::uint32_t firstNewSerial_ = 0;  ///< of the inputs that the running handlers made
    bool inChangeEvent_ = false;
    bool valid_ = true;
    std::optional<std::uint64_t> previewed_;  ///< the record of a preview that was not taken back
    bool previewAccepts_ = false;  ///< the last preview can take the place of the execution
};

}  // namespace host::ui
