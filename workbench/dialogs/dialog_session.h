#pragma once

#include "workbench/dialogs/run_folder.h"

#include "host/session/session.h"

#include <functional>
#include <memory>
#include <string>

namespace workbench {

/// A session with the user's settings in which the add-in has started, for a subcommand that works
/// in one of its dialogs. What the add-in shows to its user goes to stderr.
class DialogSession {
public:
    /// Throws a `Failure` where the add-in cannot be used. `adjust` may change what the session is
    /// started with.
    explicit DialogSession(const AddinChoice& choice, DataUse use = DataUse::Read,
                           const std::function<void(host::SessionOptions&)>& adjust = {});

    /// Does what the user would do. Throws a `Failure` with what the add-in threw meanwhile, or
    /// with the reason why a step could not be done.
    void act(const std::function<void(host::Session&)>& steps);

    /// Presses the button of a command; throws a `Failure` when no dialog opens.
    void open(const std::string& command);

    /// The settings of the add-in, for a data home that is changed.
    [[nodiscard]] const RunFolder& folder() const { return folder_; }

    [[nodiscard]] host::Session& session() { return *session_; }

private:
    void take(const std::function<void(host::Session&)>& steps);

    RunFolder folder_;
    std::unique_ptr<host::Session> session_;
};

}  // namespace workbench
