#include "workbench/dialogs/bom_run.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_session.h"
#include "workbench/dialogs/bom_columns.h"
#include "workbench/dialogs/edit_check.h"
#include "workbench/dialogs/uncaught.h"
#include "workbench/dialogs/unmeasured.h"
#include "workbench/output/export_check.h"

#include "host/base/utf8_path.h"

#include <algorithm>
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

/// Where the printed rows are in the design.
std::vector<RowPlace> placesOf(const host::Session& session, const std::vector<BomRow>& rows) {
    const host::DesignData design = session.design();
    const std::vector<BomOccurrence> occurrences = occurrencesOf(design);
    const std::vector<bool> assumed = componentsWithAssumed(design);
    std::vector<RowPlace> places;
    for (const BomRow& row : rows) {
        if (row.line > 0) {
            const BomOccurrence& occurrence = occurrences.at(row.occurrence);
            places.push_back({.level = occurrence.level,
                              .path = occurrence.path,
                              .isAssumed = assumed.at(occurrence.component)});
        }
    }
    return places;
}

BomList readVisibleList(const host::Session& session, const BomTab& tab) {
    const Ptr<TableCommandInput> table = session.table(tab.table);
    const host::TableView view = host::readTable(table);
    BomList list = readBomList(view);
    list.places = placesOf(session, rowsOf(table, view));
    if (&tab == &kStructureTab) {
        const Ptr<StringValueCommandInput> total = session.input(kTotalMass);
        list.totalCaption = total ? total->name() : "";
        list.total = total ? total->value() : "";
    }
    return list;
}

template <class Item>
void append(std::vector<Item>& all, const std::vector<Item>& more) {
    all.insert(all.end(), more.begin(), more.end());
}

/// What the shell was asked for, without the folder of the run: that goes with it.
std::vector<std::string> withoutFolder(std::vector<std::string> targets, const fs::path& folder) {
    const auto withSlashes = [](std::string path) {
        std::ranges::replace(path, '\\', '/');
        return path;
    };
    const std::string begin = withSlashes(host::toUtf8(folder)) + "/";
    for (std::string& target : targets) {
        target.erase(0, withSlashes(target).starts_with(begin) ? begin.size() : 0);
    }
    return targets;
}

host::DesignData emptyDesign() {
    host::DesignData design;
    design.components.emplace_back().name = "Columns";
    return design;
}

std::vector<ColumnChoice> defaultColumns() {
    std::vector<ColumnChoice> columns;
    for (const char* const property : kDefaultColumns) {
        columns.push_back({.property = property, .caption = property});
    }
    return columns;
}

bool hasFreeColumns(const host::Session& session) {
    const auto columns = columnsOf(host::readTable(session.table(kModelTab.table)));
    return std::ranges::any_of(
        columns, [](const BomColumn& each) { return each.column >= kFirstFreeColumn; });
}

DataUse dataUse(const BomRequest& request) {
    if (request.open) {
        return DataUse::Stay;
    }
    return request.keepColumns || request.noColumns ? DataUse::Change : DataUse::Read;
}

}  // namespace

BomRun::BomRun(const BomRequest& request)
    : request_(request), folder_(request.addin, dataUse(request)) {}

void BomRun::stageSettings(StagedFiles& files) const {
    if (request_.keepColumns || request_.noColumns) {
        folder_.stageSettings(files);
    }
}

/// Does something in the dialog of a design, in a session of its own.
void BomRun::useDialog(host::DesignData design, BomResult& result,
                       const std::function<void(host::Session&)>& work) {
    host::SessionOptions options = folder_.session();
    options.shell = request_.open ? host::shell_requests::Policy::RecordOpen
                                  : host::shell_requests::Policy::Record;
    const std::unique_ptr<host::Session> session = startSession(options);
    try {
        session->openDesign(std::move(design));
        openDialog(*session);
        work(*session);
        if (session->dialogOpen()) {
            session->cancel();
        }
        session->stop();
    } catch (const Failure& failure) {
        throw folder_.explained(failure, *session);
    } catch (const std::runtime_error& obstacle) {
        throw folder_.explained(Failure(ExitCode::AddinFailed, explain(*session, obstacle.what())),
                                *session);
    }
    append(result.shell, request_.open
                             ? session->openedByShell()
                             : withoutFolder(session->openedByShell(), session->addin().folder));
    append(result.thrown, session->uncaughtExceptions());
    append(result.messages, session->messages());
}

/// Only properties of the components need the design: without them an empty one will do, which
/// costs nothing.
void BomRun::chooseColumns(const host::DesignData& design, BomResult& result) {
    if (!request_.columns.empty()) {
        useDialog(design, result,
                  [&](host::Session& session) { saveColumns(session, request_.columns); });
        return;
    }
    BomResult apart;
    useDialog(emptyDesign(), apart, [&](host::Session& session) {
        if (request_.noColumns) {
            saveColumns(session, {});
        } else if (!hasFreeColumns(session)) {
            saveColumns(session, defaultColumns());
        }
    });
}

/// Shows the tab in the requested order and depth.
void BomRun::arrange(host::Session& session) const {
    session.activateTab(request_.tab->tab);
    const int levels = request_.levels.value_or(1);
    if (levels > 1) {
        expandTree(session, *request_.tab, levels);
    }
    if (request_.sort) {
        sortBy(session, *request_.tab, *request_.sort);
    }
}

/// Presses the button and reads what it wrote. The file of an earlier export must not be taken for
/// it.
void BomRun::exportList(host::Session& session, BomResult& result) const {
    const fs::path file = session.addin().folder / kExportFile;
    std::error_code ignored;
    fs::remove(file, ignored);
    session.click(kExportButton);
    result.exported = fileContent(file);
    if (request_.open && fs::exists(file, ignored)) {
        result.exportFile = file;
    }
    const std::string end = ";" + std::string(kMassLineBegin) + ": ;" + result.list.total + "\r\n";
    const std::string obstacle = whyIncomplete(result.exported, result.list, end);
    if (!obstacle.empty()) {
        refuseUnexpected(session.uncaughtExceptions());
        throw Failure(ExitCode::OutputFailed, obstacle);
    }
}

BomResult BomRun::make(host::DesignData design) {
    BomResult result;
    const host::ComponentData& root = design.components.front();
    result.isLonePart = root.children.empty() && root.geometry != nullptr;
    chooseColumns(design, result);
    EditedTable edited;
    if (request_.save) {
        useDialog(design, result, [&](host::Session& session) {
            arrange(session);
            edited = editCells(session, *request_.tab, request_.edits);
            acceptChanges(session, *request_.tab);
            result.saved = session.design();
        });
    }
    useDialog(result.saved ? *result.saved : std::move(design), result,
              [&](host::Session& session) {
                  arrange(session);
                  checkEdits(session, *request_.tab, edited);
                  result.list = readVisibleList(session, *request_.tab);
                  refuseUnmeasured(session.unmeasured());
                  exportList(session, result);
              });
    return result;
}

}  // namespace workbench
