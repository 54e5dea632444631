#pragma once

#include "host/application/log.h"
#include "host/application/running_host.h"
#include "host/base/dispatcher.h"
#include "host/base/gate.h"
#include "host/cloud/user_data.h"
#include "host/design/unmeasured.h"
#include "host/import/read_design.h"
#include "host/session/addin_copy.h"
#include "host/session/input_actions.h"
#include "host/session/loaded_module.h"
#include "host/session/process_sandbox.h"
#include "host/session/session_error.h"
#include "host/session/session_folder.h"
#include "host/session/shell_requests.h"
#include "host/session/system_overrides.h"
#include "host/session/table_view.h"
#include "host/session/user_actions.h"

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A user at the host, with one add-in.
///
/// A session is the one way in which a program drives the host: the workbench, a test, a benchmark.
/// It starts the host, loads a copy of the add-in's module, and then does what a user could do:
/// opens designs, presses buttons, types into cells, chooses, accepts and closes dialogs. One
/// process has one session at a time, and as many after each other as it likes; each has a host of
/// its own and the module's statics as they are after loading.
///
/// What the module throws never reaches the caller: `uncaughtExceptions` lists it. What the
/// screen does not offer throws a `MisuseError`. Actions that are not among the members here are in
/// `host/session/user_actions.h`; they work on the host of the session.
namespace host {

struct SessionOptions {
    /// The installed add-in: a folder that holds the manifest and the module of the folder's name.
    std::filesystem::path addin;

    /// Where the copy of the add-in, the working directory and the temporary folder lie. Empty: a
    /// fresh folder that is deleted with the session. Else this one, which stays, with the add-in's
    /// settings in it, and is locked while the session lives.
    std::filesystem::path home;

    /// A folder that sessions one after another share, in the place of `home`. The caller discards
    /// it after the last of them.
    std::shared_ptr<const SessionFolder> folder;

    /// Where fresh folders are made; empty: the system's folder for temporary files.
    std::filesystem::path scratchRoot;

    /// How long to wait for a home that another process uses.
    std::chrono::milliseconds lockTimeout{3000};

    HostSetup host;

    /// The user's choice of a language, which a module may ask for.
    adsk::core::UserLanguages language = adsk::core::EnglishLanguage;

    shell_requests::Policy shell = shell_requests::Policy::Record;
    SystemOverrides system;

    /// Lets the module make its temporary files in the user's temporary folder instead of the
    /// private one.
    bool useUserTempDir = false;

    /// Takes the module out of the process at the end, which lets thousands of sessions follow each
    /// other; a report of leaks can then not name its functions.
    bool unloadAtEnd = false;
};

class Session {
public:
    /// Starts the host in its process sandbox and loads the module; the caller calls `run`.
    /// Throws a `SessionError` where the add-in or its place is unusable, or another session lives;
    /// nothing is left then.
    explicit Session(SessionOptions options);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Ends the host and leaves the process sandbox. The module is not asked to stop.
    ~Session();

    /// @name The add-in
    /// @{

    /// Whether the module exports a function of that name, `run` or `stop`.
    [[nodiscard]] bool exports(const std::string& function) const;

    /// Calls the module's `run` as a loader does; what it returned, false when it threw or has
    /// none.
    bool run();

    /// Calls the module's `stop` as a loader does; what it returned, false when it threw or has
    /// none.
    bool stop();

    /// Whether `stop` was called after the last `run`: by the caller, or because the module asked
    /// for that with `adsk::terminate`.
    [[nodiscard]] bool isStopped() const { return isStopped_; }

    /// The session's own copy of the add-in: what the module writes beside itself is there.
    [[nodiscard]] const AddinFiles& addin() const { return addin_; }

    /// The folder that holds that copy, the working directory and the temporary folder.
    [[nodiscard]] const std::filesystem::path& folder() const { return folder_->path(); }
    /// @}

    /// @name Documents
    /// @{

    /// Opens a file, which replaces the document that is open: STEP or a design file, by its
    /// content. A relative path starts in the working directory before the session. Returns the
    /// warnings of the reader; throws what it cannot read, with the earlier document still open.
    std::vector<ReadingWarning> open(const std::filesystem::path& file,
                                     const ReadingLimits& limits = {},
                                     const ImportProgress& progress = {});

    /// Opens a design drawn as an outline; throws a `DesignError` for one that cannot be read.
    void openOutline(const std::string& outline);

    /// Opens a design that was made in code.
    void openDesign(DesignData design);

    /// Opens a design that was read from a file, or that is to count as if it were.
    void openDesign(DesignData design, const std::filesystem::path& file);

    /// Opens an empty design.
    void newDesign();

    /// Opens an empty document whose product is no design.
    void openForeignDocument();

    /// Writes the open design into a design file, which is replaced where it exists.
    void save(const std::filesystem::path& file);

    /// Makes a local folder the user's data. A document that is then opened from a file in one of
    /// its projects, or saved into one, has that file. Throws a `SessionError` where that
    /// is not a folder.
    void useData(UserDataSetup setup);

    /// The open design as it is now.
    [[nodiscard]] DesignData design() const;

    /// The designs that the module opened as documents of their own, oldest first.
    [[nodiscard]] std::vector<DesignData> designsOpenedByModule() const;

    /// Begins to edit a sketch of the open design; components and their sketches are counted as in
    /// its `DesignData`. Throws a `SessionError` where there is none.
    void editSketch(std::size_t component, std::size_t sketch);

    /// Goes back to editing the component.
    void leaveSketch();
    /// @}

    /// @name User actions
    /// A `SessionError` or a `MisuseError` is thrown for what is not there, with the names of what
    /// is.
    /// @{

    /// Presses the button of a command, which starts it.
    void press(const std::string& commandId);

    /// True while a dialog is open.
    [[nodiscard]] bool dialogOpen() const;

    /// The open dialog's command.
    [[nodiscard]] adsk::core::Ptr<adsk::core::Command> dialog() const;

    /// An input of the open dialog: of the active tab first, else the first anywhere.
    [[nodiscard]] adsk::core::Ptr<adsk::core::CommandInput> input(const std::string& id) const;
    [[nodiscard]] adsk::core::Ptr<adsk::core::TableCommandInput> table(const std::string& id) const;

    /// The ids of all inputs of the open dialog that have one, each once, in the dialog's order.
    [[nodiscard]] std::vector<std::string> inputIds() const;

    /// Clicks a button or check box.
    void click(const std::string& id);

    /// Types a string into a field, key by key; it replaces what the field held.
    void type(const std::string& id, const std::string& text);

    /// Pastes a string into a field, as one change; it replaces what the field held.
    void paste(const std::string& id, const std::string& text);

    /// Chooses an item of a list by its name.
    void choose(const std::string& id, const std::string& item);

    /// Shows a tab of the dialog.
    void activateTab(const std::string& id);

    /// Picks the root component (its name, or an empty path) or an occurrence (its full path name)
    /// in the browser tree; again, to take it out of the dialog's selection.
    void pick(const std::string& path);

    /// Selects a row of a table.
    void selectRow(const std::string& tableId, int row);

    /// Accepts the dialog.
    void ok();

    /// Closes the dialog without accepting it.
    void cancel();

    /// Shows another workspace.
    void activateWorkspace(const std::string& id);
    /// @}

    /// @name What happened
    /// @{

    /// What left the module as an exception since the session began, or since it was cleared.
    [[nodiscard]] const std::vector<UncaughtException>& uncaughtExceptions() const;
    void clearUncaughtExceptions();

    /// The warnings of the reader about files that the module opened, as `open` returns them for
    /// others.
    [[nodiscard]] const std::vector<ReadingWarning>& importWarnings() const;

    /// The components of the open design that were asked for their size and could not be measured:
    /// each counts as nothing in every sum.
    [[nodiscard]] std::vector<Unmeasured> unmeasured() const;

    /// Schedules something for so many seconds from now on the host's clock. It is done while the
    /// module waits in a call to the host, at the first moment at which that time has come.
    void schedule(double seconds, std::function<void()> action);

    /// The messages that were shown, oldest first.
    [[nodiscard]] const std::vector<Message>& messages() const;

    /// What the module wrote with `Application::log`, oldest first.
    [[nodiscard]] std::vector<LogLine> log() const;

    /// What the module asked the shell to open, as it spelt it, oldest first.
    [[nodiscard]] const std::vector<std::string>& openedByShell() const;
    /// @}

private:
    void begin();
    void end() noexcept;
    void show(const adsk::core::Ptr<adsk::core::Document>& document,
              const adsk::core::Ptr<adsk::core::Product>& product);
    [[nodiscard]] std::filesystem::path absolute(const std::filesystem::path& file) const;
    bool call(const char* entry, const char* context);

    SessionOptions options_;
    AddinFiles installed_;
    std::shared_ptr<const SessionFolder> folder_;
    AddinFiles addin_;
    std::optional<ProcessSandbox> sandbox_;
    std::optional<RunningHost> host_;
    LoadedModule module_;
    bool isStopped_ = false;
    adsk::core::Ptr<adsk::core::Document> document_;
    std::unique_ptr<UserData> data_;
};

}  // namespace host
