#pragma once

#include "host/session/session.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace workbench {

/// A session of this user in which the add-in has started, for a command that works in one of its
/// dialogs. What the add-in shows to its user goes to stderr.
class DialogRun {
public:
    /// `addin` is the folder of the add-in; empty for the one beside the program. Throws a
    /// `Failure` where it cannot be used.
    explicit DialogRun(const std::string& addin);

    /// As the other, with a session of one's own making.
    explicit DialogRun(const host::SessionOptions& options);

    /// Does steps of a person. Throws a `Failure` with what the add-in threw meanwhile, or with
    /// what was in the way of a step.
    void act(const std::function<void(host::Session&)>& steps);

    /// Presses the button of a command; throws a `Failure` when no dialog opens.
    void open(const std::string& command);

    /// Writes the open design into a design file, whole or not at all; a relative path starts where
    /// the program was started. Throws a `Failure` where that cannot be done.
    void save(const std::filesystem::path& file);

    [[nodiscard]] host::Session& session() { return *session_; }

private:
    std::unique_ptr<host::Session> session_;
};

}  // namespace workbench
