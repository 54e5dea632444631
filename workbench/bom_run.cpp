#include "workbench/bom_run.h"

#include "workbench/exit_code.h"

#include "host/session/environment.h"
#include "host/session/utf8_path.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <utility>

namespace workbench {
namespace {

namespace fs = std::filesystem;
using namespace adsk::core;

/// The folder that keeps the add-in's copy and settings of this user.
fs::path userFolder() {
    const fs::path data = host::environment::userDataFolder();
    if (data.empty()) {
        throw Failure(ExitCode::NoAddin,
                      "the system names no folder for a user's data: set XDG_DATA_HOME or HOME");
    }
    return data / "tarnix-workbench";
}

host::SessionOptions sessionOptions(const BomOptions& options) {
    host::SessionOptions session;
    session.addin = options.addin.empty()
                        ? host::environment::programFolder().parent_path() / "Tarnix"
                        : host::fromUtf8(options.addin);
    session.home = userFolder();
    session.shell = options.open ? host::shell_requests::Policy::RecordOpen
                                 : host::shell_requests::Policy::Record;
    return session;
}

std::string fileContent(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void openDialog(host::Session& session) {
    if (!session.run()) {
        throw Failure(ExitCode::AddinFailed, "the add-in did not start");
    }
    session.press(kBomCommand);
    if (!session.dialogOpen()) {
        throw Failure(ExitCode::AddinFailed, "the add-in opened no BOM dialog");
    }
}

PartsList readShownList(const host::Session& session, const BomTab& tab) {
    PartsList list = readPartsList(host::readTable(session.table(tab.table)));
    if (std::string(tab.name) == kStructureTab.name) {
        const Ptr<StringValueCommandInput> total = session.input(kTotalMass);
        list.totalCaption = total ? total->name() : "";
        list.total = total ? total->value() : "";
    }
    return list;
}

/// Presses the button, and sees what it left. A file of an earlier export is no answer.
void exportList(host::Session& session, BomResult& result) {
    const fs::path file = session.addin().folder / kExportFile;
    std::error_code ignored;
    fs::remove(file, ignored);
    session.click(kExportButton);
    if (fs::exists(file, ignored)) {
        result.exported = fileContent(file);
        result.exportFile = file;
    }
}

BomResult useAddin(host::Session& session, const BomTab& tab) {
    BomResult result;
    openDialog(session);
    session.activateTab(tab.tab);
    result.list = readShownList(session, tab);
    exportList(session, result);
    session.cancel();
    session.stop();
    return result;
}

/// Why a step could not be done: what the add-in raised before, else what was in the way.
std::string explain(const host::Session& session, const std::string& obstacle) {
    const auto first =
        std::find_if_not(session.raised().begin(), session.raised().end(), isOrdinary);
    return first != session.raised().end() ? describe(*first) : obstacle;
}

std::unique_ptr<host::Session> startSession(const BomOptions& options) {
    try {
        return std::make_unique<host::Session>(sessionOptions(options));
    } catch (const host::SessionError& error) {
        throw Failure(ExitCode::NoAddin, error.what());
    }
}

}  // namespace

BomResult makeBom(host::DesignData design, const BomTab& tab, const BomOptions& options) {
    const std::unique_ptr<host::Session> session = startSession(options);
    BomResult result;
    try {
        session->openDesign(std::move(design));
        result = useAddin(*session, tab);
    } catch (const std::runtime_error& obstacle) {
        throw Failure(ExitCode::AddinFailed, explain(*session, obstacle.what()));
    }
    result.shell = session->openedByShell();
    result.raised = session->raised();
    for (const host::Message& message : session->messages()) {
        result.messages.push_back(message.text);
    }
    return result;
}

bool isOrdinary(const host::Raised& raised) {
    const bool afterExport =
        raised.inputId == kExportButton && raised.text == "invalid stoi argument";
    return afterExport || (raised.event == "stop" && raised.type == "std::exception");
}

std::string describe(const host::Raised& raised) {
    std::string line = "the add-in raised " + raised.type;
    line += raised.text.empty() ? "" : " (" + raised.text + ")";
    line += " in " + raised.event;
    return line + (raised.inputId.empty() ? "" : " of " + raised.inputId);
}

}  // namespace workbench
