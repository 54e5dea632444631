#include "workbench/dialogs/bom_run.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_session.h"
#include "workbench/dialogs/bom_dialog.h"
#include "workbench/dialogs/unmeasured.h"

#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <utility>

namespace workbench {
namespace {

namespace fs = std::filesystem;
using namespace adsk::core;

host::SessionOptions sessionOptions(const BomOptions& options) {
    host::SessionOptions session = userSession(options.addin);
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
        throw std::runtime_error("the add-in did not start");
    }
    session.press(kBomCommand);
    if (!session.dialogOpen()) {
        throw std::runtime_error("the add-in opened no BOM dialog");
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

/// Shows the tab as it is wished for.
void arrange(host::Session& session, const BomTab& tab, const BomWishes& wishes) {
    session.activateTab(tab.tab);
    if (wishes.levels > 1) {
        expandTree(session, tab, wishes.levels);
    }
    if (wishes.sort) {
        sortBy(session, tab, *wishes.sort);
    }
}

/// Notes what a session leaves behind.
void noteTraces(const host::Session& session, BomResult& result) {
    result.shell.insert(result.shell.end(), session.openedByShell().begin(),
                        session.openedByShell().end());
    result.thrown.insert(result.thrown.end(), session.uncaughtExceptions().begin(),
                         session.uncaughtExceptions().end());
    for (const host::Message& message : session.messages()) {
        result.messages.push_back(message.text);
    }
}

/// Does something in the dialog of a design, in a session of its own.
void useAddin(const BomOptions& options, host::DesignData design, BomResult& result,
              const std::function<void(host::Session&)>& work) {
    const std::unique_ptr<host::Session> session = startSession(sessionOptions(options));
    try {
        session->openDesign(std::move(design));
        openDialog(*session);
        work(*session);
        if (session->dialogOpen()) {
            session->cancel();
        }
        session->stop();
    } catch (const Failure&) {
        throw;
    } catch (const std::runtime_error& obstacle) {
        throw Failure(ExitCode::AddinFailed, explain(*session, obstacle.what()));
    }
    noteTraces(*session, result);
}

}  // namespace

BomResult makeBom(host::DesignData design, const BomTab& tab, const BomOptions& options,
                  const BomWishes& wishes, WrittenFiles& written) {
    BomResult result;
    if (!wishes.columns.empty()) {
        useAddin(options, design, result, [&](host::Session& session) {
            written.watch(session.addin().folder / kSettingsFile);
            saveColumns(session, wishes.columns);
        });
    }
    if (options.save) {
        useAddin(options, design, result, [&](host::Session& session) {
            arrange(session, tab, wishes);
            editCells(session, tab, wishes.cells);
            acceptChanges(session, tab);
            result.saved = session.design();
        });
    }
    useAddin(options, result.saved ? *result.saved : std::move(design), result,
             [&](host::Session& session) {
                 arrange(session, tab, wishes);
                 result.list = readShownList(session, tab);
                 refuseUnmeasured(session.unmeasured());
                 exportList(session, result);
             });
    return result;
}

}  // namespace workbench
