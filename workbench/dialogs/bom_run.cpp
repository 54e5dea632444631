#include "workbench/dialogs/bom_run.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_session.h"
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

host::SessionOptions sessionOptions(const BomRequest& request) {
    host::SessionOptions session = userSession(request.addin);
    session.shell = request.open ? host::shell_requests::Policy::RecordOpen
                                 : host::shell_requests::Policy::Record;
    return session;
}

std::string fileContent(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void openDialog(host::Session& session) {
    runAddin(session);
    session.press(kBomCommand);
    if (!session.dialogOpen()) {
        throw std::runtime_error("the add-in did not open the BOM dialog");
    }
}

PartsList readVisibleList(const host::Session& session, const BomTab& tab) {
    PartsList list = readPartsList(host::readTable(session.table(tab.table)));
    if (&tab == &kStructureTab) {
        const Ptr<StringValueCommandInput> total = session.input(kTotalMass);
        list.totalCaption = total ? total->name() : "";
        list.total = total ? total->value() : "";
    }
    return list;
}

/// Presses the button and reads what it wrote. The file of an earlier export must not be taken for
/// it.
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

/// Shows the tab in the requested order and depth.
void arrange(host::Session& session, const BomRequest& request) {
    session.activateTab(request.tab->tab);
    const int levels = request.levels.value_or(1);
    if (levels > 1) {
        expandTree(session, *request.tab, levels);
    }
    if (request.sort) {
        sortBy(session, *request.tab, *request.sort);
    }
}

template <class Item>
void append(std::vector<Item>& all, const std::vector<Item>& more) {
    all.insert(all.end(), more.begin(), more.end());
}

/// Does something in the dialog of a design, in a session of its own.
void useDialog(const BomRequest& request, host::DesignData design, BomResult& result,
               const std::function<void(host::Session&)>& work) {
    const std::unique_ptr<host::Session> session = startSession(sessionOptions(request));
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
    append(result.shell, session->openedByShell());
    append(result.thrown, session->uncaughtExceptions());
    append(result.messages, session->messages());
}

}  // namespace

BomResult runBomDialog(host::DesignData design, const BomRequest& request, WrittenFiles& written) {
    BomResult result;
    if (!request.columns.empty()) {
        useDialog(request, design, result, [&](host::Session& session) {
            written.watch(session.addin().folder / kSettingsFile);
            saveColumns(session, request.columns);
        });
    }
    if (request.save) {
        useDialog(request, design, result, [&](host::Session& session) {
            arrange(session, request);
            editCells(session, *request.tab, request.edits);
            acceptChanges(session, *request.tab);
            result.saved = session.design();
        });
    }
    useDialog(request, result.saved ? *result.saved : std::move(design), result,
              [&](host::Session& session) {
                  arrange(session, request);
                  result.list = readVisibleList(session, *request.tab);
                  refuseUnmeasured(session.unmeasured());
                  exportList(session, result);
              });
    return result;
}

}  // namespace workbench
