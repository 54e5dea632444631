#pragma once

#include "host/session/session.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace workbench {

/// A session of this user in which the add-in has started, for a subcommand that works in one of
/// its dialogs. What the add-in shows to its user goes to stderr.
class DialogSession {
public:
    /// `addin` is the folder of the add-in; empty for the one beside the program. Throws a
    /// `Failure` where it cannot be used.
    explicit DialogSession(const std::string& addin);

    /// The same with options of the caller's own.
    explicit DialogSession(const host::SessionOptions& options);

    /// Does what the user would do. Throws a `Failure` with what the add-in threw meanwhile, or
    /// with the reason why a step could not be done.
    void act(const std::function<void(host::Session&)>& steps);

    /// Presses the button of a command; throws a `Failure` when no dialog opens.
    void open(const std::string& command);

    /// Writes the open design into a design file, whole or not at all; a relative path is relative
    /// to the folder in which the program was started. Throws a `Failure` where that fails.
    void save(const std::filesystem::path& file);

    [[nodiscard]] host::Session& session() { return *session_; }

private:
    std::unique_ptr<host::Session> session_;
};

}  // namespace workbench
