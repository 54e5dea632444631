#include "workbench/dialogs/run_folder.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_ids.h"
#include "workbench/dialogs/addin_session.h"

#include "host/base/utf8_path.h"
#include "host/session/environment.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace workbench {
namespace {

namespace fs = std::filesystem;

/// The folder in the data home in which a run works that is to stay.
constexpr const char* kStayingFolder = "opened";

fs::path dataHomeOf(const AddinChoice& choice, DataUse use) {
    if (!choice.dataHome.empty()) {
        return fs::absolute(host::fromUtf8(choice.dataHome));
    }
    // Without a place for a user's data there are no settings, which only a change of them needs.
    const bool isNeeded = use != DataUse::Read;
    return isNeeded || !host::environment::userDataFolder().empty() ? userFolder() : fs::path();
}

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace

void checkAddin(const AddinChoice& choice) {
    try {
        host::findAddin(addinFolder(choice.addin));
    } catch (const std::runtime_error& error) {
        throw Failure(ExitCode::NoAddin, error.what());
    }
}

RunFolder::RunFolder(AddinChoice choice, DataUse use) : choice_(std::move(choice)) {
    dataHome_ = dataHomeOf(choice_, use);
    try {
        addin_ = host::findAddin(addinFolder(choice_.addin));
        if (use != DataUse::Read) {
            lock_ = host::SessionFolder::keep(dataHome_, choice_.lockTimeout);
        }
        folder_ = std::make_shared<const host::SessionFolder>(
            use == DataUse::Stay
                ? host::SessionFolder::keep(dataHome_ / kStayingFolder, choice_.lockTimeout)
                : host::SessionFolder::makeFresh({}));
        copySettings();
    } catch (const Failure&) {
        throw;
    } catch (const std::runtime_error& error) {
        throw Failure(ExitCode::NoAddin, error.what());
    }
}

RunFolder::~RunFolder() {
    if (folder_) {
        // Where the module stays loaded, its file is left to the next run.
        folder_->discard(kUnloadsAddin ? fs::path()
                                       : folder_->path() / host::fromUtf8(addin_.name) /
                                             addin_.module().filename());
    }
}

fs::path RunFolder::settingsIn(const fs::path& folder) const {
    return folder / host::fromUtf8(addin_.name) / kSettingsFile;
}

void RunFolder::copySettings() const {
    const fs::path mine = settingsIn(folder_->path());
    fs::create_directories(mine.parent_path());
    fs::remove(mine);
    const fs::path kept = settingsIn(dataHome_);
    std::error_code failure;
    if (!dataHome_.empty() && fs::exists(kept) && !fs::copy_file(kept, mine, failure)) {
        throw Failure(ExitCode::NoAddin, "the settings " + host::toUtf8(kept) +
                                             " cannot be read (" + failure.message() +
                                             "); remove them to begin with new ones");
    }
}

Failure RunFolder::explained(const Failure& failure, const host::Session& session) const {
    constexpr const char* kXmlError = "_com_error";
    const fs::path kept = settingsIn(dataHome_);
    const auto& thrown = session.uncaughtExceptions();
    if (dataHome_.empty() || !fs::exists(kept) ||
        std::ranges::find(thrown, kXmlError, &host::UncaughtException::type) == thrown.end()) {
        return failure;
    }
    return {failure.code(), std::string(failure.what()) + "; the settings " + host::toUtf8(kept) +
                                " may be damaged: correct them, or remove them to begin with new "
                                "ones"};
}

host::SessionOptions RunFolder::session() const {
    host::SessionOptions session;
    session.addin = addin_.folder;
    session.folder = folder_;
    session.unloadAtEnd = kUnloadsAddin;
    return session;
}

void RunFolder::stageSettings(StagedFiles& files) const {
    files.add(settingsIn(dataHome_), contentOf(settingsIn(folder_->path())));
}

}  // namespace workbench
