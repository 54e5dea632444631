#pragma once

#include "workbench/cli/addin_choice.h"

#include "workbench/cli/exit_code.h"
#include "workbench/output/staged_files.h"

#include "host/session/session.h"

#include <filesystem>
#include <memory>
#include <optional>

namespace workbench {

/// Throws a `Failure` where the add-in is missing: to be called before work that takes long.
void checkAddin(const AddinChoice& choice);

/// What a run does with its data home.
enum class DataUse {
    Read,    ///< starts with its settings; the folder is neither made nor locked
    Change,  ///< stores settings in it at the end
    Stay,    ///< works in a folder inside it that stays, for what is opened after the run
};

/// The folder in which the sessions of one run work, one after another.
///
/// It is private, and begins with a copy of the settings in the data home, so runs never see each
/// other's changes; it goes with the run unless that is to stay. A run that changes its data home
/// keeps it locked from here to its end. Settings are replaced as a whole, so reading them needs no
/// lock.
class RunFolder {
public:
    /// Throws a `Failure` where the add-in is missing, a folder cannot be made, or another run has
    /// the data home for longer than the timeout.
    RunFolder(AddinChoice choice, DataUse use);
    RunFolder(const RunFolder&) = delete;
    RunFolder& operator=(const RunFolder&) = delete;
    ~RunFolder();

    /// What each session of the run is started with.
    [[nodiscard]] host::SessionOptions session() const;

    /// The failure of a session, with what to do about it where the settings may be the cause: the
    /// add-in reads them as XML, and passes on what is thrown there.
    [[nodiscard]] Failure explained(const Failure& failure, const host::Session& session) const;

    /// Adds the settings as they are now to what is to be written, as those of the data home, which
    /// has to be one that is changed. Throws a `Failure` where that fails.
    void stageSettings(StagedFiles& files) const;

private:
    void copySettings() const;
    [[nodiscard]] std::filesystem::path settingsIn(const std::filesystem::path& folder) const;

    AddinChoice choice_;
    host::AddinFiles addin_;
    std::filesystem::path dataHome_;           ///< empty where the system names no place for one
    std::optional<host::SessionFolder> lock_;  ///< of the data home
    std::shared_ptr<const host::SessionFolder> folder_;
};

}  // namespace workbench
