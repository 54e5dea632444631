#pragma once

#include "workbench/dialogs/run_folder.h"
#include "workbench/output/run_step.h"

#include "host/session/session.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// Any module for this host, used step by step, with a record of what each step led to.
namespace workbench {

/// The folder of an add-in that is named by its folder or by its module. A module that is alone, or
/// whose folder has another name, is put into a fresh folder with a manifest of its name; it goes
/// with this object.
class NamedAddin {
public:
    /// Throws a `Failure` for what is neither.
    explicit NamedAddin(const std::string& name);
    NamedAddin(const NamedAddin&) = delete;
    NamedAddin& operator=(const NamedAddin&) = delete;
    ~NamedAddin();

    /// In UTF-8.
    [[nodiscard]] const std::string& folder() const { return folder_; }

private:
    void stage(const std::filesystem::path& module);

    std::string folder_;
    std::optional<host::SessionFolder> staged_;
};

/// A private session with an add-in that has not been called yet.
class AddinRun {
public:
    /// Throws a `Failure` where the add-in cannot be loaded or has no `run`.
    explicit AddinRun(const std::string& addin);

    [[nodiscard]] host::Session& session() { return *session_; }

    /// Does one step. Where it cannot be done, throws a `Failure`: for wrong usage, or of the
    /// add-in where no option asked for the step. `step` has what the add-in did until then.
    void act(RunStep& step, const std::function<void()>& action);

    /// Remembers the open design as it is now.
    void rememberDesign() { before_ = session_->design(); }

    /// What differs in the open design from the one that was remembered.
    [[nodiscard]] std::vector<std::string> changes() const;

private:
    void note(RunStep& step);

    NamedAddin addin_;
    RunFolder folder_;
    std::unique_ptr<host::Session> session_;
    host::DesignData before_;
    std::size_t thrown_ = 0;  // of each list, how much is in earlier steps
    std::size_t misused_ = 0;
    std::size_t messages_ = 0;
    std::size_t log_ = 0;
    std::size_t opened_ = 0;
    std::size_t commands_ = 0;
};

}  // namespace workbench
