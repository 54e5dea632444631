#pragma once

#include "workbench/dialogs/run_folder.h"
#include "workbench/output/run_step.h"

#include "host/session/session.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <set>
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

    /// What a step is made of.
    struct Parts {
        std::function<void()> action;  ///< what the user does, or the call of the module
        std::function<void()> look;    ///< what is read when all that it led to is done
    };

    /// Does one step: the action, what the module left to the host's thread meanwhile, and the
    /// look. Where the action is refused that an option asked for, throws a `Failure` for wrong
    /// usage; for anything else that cannot be done, one of the add-in. `step` has what the add-in
    /// did until then.
    void act(RunStep& step, const Parts& parts);

    /// Remembers the open design as it is now, and those that the module opened.
    void rememberDesign();

    /// What differs in these designs from what was remembered, and whether another one is active.
    [[nodiscard]] std::vector<std::string> changes() const;

private:
    void note(RunStep& step);

    NamedAddin addin_;
    RunFolder folder_;
    std::unique_ptr<host::Session> session_;
    adsk::core::Ptr<adsk::core::Document> document_;  ///< that was active when it was remembered
    host::DesignData before_;
    std::vector<host::DesignData> opened_;
    std::set<std::string> commands_;
    std::size_t thrown_ = 0;  // of each list, how much is in earlier steps
    std::size_t misused_ = 0;
    std::size_t messages_ = 0;
    std::size_t log_ = 0;
    std::size_t shellRequests_ = 0;
};

}  // namespace workbench
