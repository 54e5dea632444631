#include "workbench/serve/design_digest.h"
#include "workbench/serve/protocol_error.h"
#include "workbench/serve/served_host_parts.h"
#include "workbench/serve/state_json.h"

#include "host/base/utf8_path.h"
#include "host/session/screen_view.h"

#include <algorithm>
#include <utility>

// What the pages see.
namespace workbench::serve {

using adsk::core::Ptr;

void ServedHost::publish() {
    static_cast<void>(readState());
    showAll();
}

void ServedHost::showAll() {
    ++revision_;
    for (const std::shared_ptr<Page>& each : pages_.all()) {
        showTo(*each);
    }
}

void ServedHost::greet(const std::shared_ptr<Page>& page) {
    try {
        // What was read last may be gone by now, while a handler waits.
        if (readState() || revision_ == 0) {
            showAll();
        } else {
            showTo(*page);
        }
    } catch (const std::exception& error) {
        log_.addWarning(error.what());
        page->close();
    }
}

void ServedHost::showTo(Page& page) {
    const auto state = std::make_shared<State>();
    state->revision = revision_;
    state->sections = sections_;
    state->sections["dialog"] = std::make_shared<const Json>(dialogFor(page));
    page.show(state);
}

bool ServedHost::readState() {
    std::map<std::string, Json> fresh;
    if (!session_) {
        readWithoutAddin(fresh);
        return update(sections_, std::move(fresh));
    }
    log_.follow(*session_);
    const host::ToolbarView toolbars = host::readToolbars();
    const std::optional<host::Progress> progress = host::progressDialog();
    readDesignState(fresh);
    fresh["document"] = documentJson();
    fresh["addin"] = {{"name", session_->addin().name}, {"running", running_}};
    fresh["workspaces"] = workspacesJson(toolbars, *pictures_);
    fresh["commands"] = controlsJson(toolbars.withoutButton, *pictures_);
    fresh["selection"] = host::selectedPaths();
    const bool isAsked = waiting_ != nullptr && !waiting_->answered;
    fresh["message"] = isAsked ? waiting_->message : Json();
    fresh["fileDialog"] = isAsked ? waiting_->fileDialog : Json();
    fresh["progress"] = progress ? progressJson(*progress) : Json();
    fresh["busy"] = busy_.empty() ? Json() : Json(busy_);
    fresh["palettes"] = palettesJson(host::readPalettes());
    fresh["opened"] = openedJson();
    fresh["log"] = log_.json();
    const bool dialogChanged = readDialogState();
    return update(sections_, std::move(fresh)) || dialogChanged;
}

// The design stays on the screen, and nothing that needs the add-in.
void ServedHost::readWithoutAddin(std::map<std::string, Json>& fresh) {
    const auto known = sections_.find("addin");
    Json addin = known == sections_.end() ? Json::object() : *known->second;
    addin["running"] = false;
    fresh["addin"] = std::move(addin);
    if (design_) {
        fresh["document"] = documentJson();
    }
    for (const char* const list : {"workspaces", "commands", "selection", "palettes", "opened"}) {
        fresh[list] = Json::array();
    }
    for (const char* const shown : {"message", "fileDialog", "progress"}) {
        fresh[shown] = Json();
    }
    fresh["busy"] = busy_.empty() ? Json() : Json(busy_);
    fresh["log"] = log_.json();
}

void ServedHost::readDesignState(std::map<std::string, Json>& fresh) {
    const Ptr<adsk::core::Document> shown = adsk::core::Application::get()->activeDocument();
    const std::uint64_t edits = host::editsOfDesign();
    const bool isOther = shown != document_;
    if (isOther || edits != readEdits_ || !design_) {
        design_ = std::make_shared<const host::DesignData>(session_->design());
        readEdits_ = edits;
        const std::uint64_t digest = digestOf(*design_);
        if (isOther || digest != modelDigest_) {
            modelDigest_ = digest;
            ++modelRevision_;
        }
        fresh["tree"] = treeJson(*design_);
    }
    if (isOther) {
        document_ = shown;
        ++shownDocuments_;
        documentNumber_ += std::exchange(showsSameDesign_, false) ? 0 : 1;
    }
    fresh["model"] = {{"revision", modelRevision_}, {"document", documentNumber_}};
}

Json ServedHost::documentJson() {
    const std::filesystem::path target = saveTarget();
    const std::filesystem::path& from = file();
    return {{"name", design_->name},
            {"file", from.empty() ? "" : nameOf(from)},
            {"saveAs", target.empty() ? "" : nameOf(target)},
            {"changed", isChanged()},
            {"given", setup_.givenName},
            {"data", host::toUtf8(data_.path())}};
}

// Each is looked for once: the file is there when the add-in asks for it.
const Json& ServedHost::openedJson() {
    constexpr std::size_t kMostRequests = 200;
    const std::vector<std::string>& targets = session_->openedByShell();
    for (std::size_t& n = shellRequestsRead_; n < targets.size(); ++n) {
        shellRequests_.push_back({{"n", n},
                                  {"target", targets[n]},
                                  {"url", openedFile(n) ? "/opened/" + std::to_string(n) : ""}});
        if (shellRequests_.size() > kMostRequests) {
            shellRequests_.erase(shellRequests_.begin());
        }
    }
    return shellRequests_;
}

bool ServedHost::readDialogState() {
    const Ptr<adsk::core::Command> shown = host::openDialog();
    if (shown != shownDialog_) {
        shownDialog_ = shown;
        for (const std::shared_ptr<Page>& each : pages_.all()) {
            each->windows.clear();
        }
    }
    dialog_.reset();
    Json json;
    if (shown) {
        dialog_ = host::readDialog(host::TableRows::Skip);
        json = dialogJson(*dialog_, *pictures_);
    }
    const bool changed = json != dialogJson_;
    dialogJson_ = std::move(json);
    return changed;
}

Json ServedHost::dialogFor(Page& page) const {
    Json json = dialogJson_;
    if (dialog_) {
        addWindows(json["inputs"], dialog_->inputs, page, /*isShown=*/true);
    }
    return json;
}

void ServedHost::addWindows(Json& inputs, const std::vector<host::InputView>& views,
                            const Page& page, bool isShown) const {
    for (std::size_t i = 0; i < views.size(); ++i) {
        const host::InputView& view = views[i];
        if (view.kind == "Table") {
            const auto found = page.windows.find(view.key);
            const RowWindow window = found == page.windows.end() ? RowWindow() : found->second;
            inputs[i]["window"] =
                windowJson(view, isShown ? window : RowWindow{.from = 0, .count = 0});
        } else if (view.kind == "Tab" || view.kind == "Group") {
            addWindows(inputs[i]["inputs"], view.inputs, page, isShown && view.active);
        }
    }
}

Json ServedHost::windowJson(const host::InputView& table, const RowWindow& window) const {
    const Ptr<adsk::core::TableCommandInput> input = host::inputOfKey(table.key);
    static const std::vector<int> kNone;
    // A handler that waits may have taken out the table since the dialog was read.
    const std::vector<int>& shown = input ? table.table.shownRows : kNone;
    const std::size_t from = std::min(window.from, shown.size());
    const std::size_t count = std::min(window.count, shown.size() - from);
    const auto first = shown.begin() + static_cast<std::ptrdiff_t>(from);
    const std::vector<int> order(first, first + static_cast<std::ptrdiff_t>(count));
    std::vector<int> read = order;
    if (window.count > 0 && !shown.empty() && from > 0) {
        read.push_back(shown.front());  // the headings
    }
    const std::vector<host::RowView> rows =
        read.empty() ? std::vector<host::RowView>() : host::readRows(input, read);
    return {{"first", shown.empty() ? -1 : shown.front()},
            {"from", from},
            {"order", order},
            {"rows", rowsJson(rows, *pictures_)}};
}

void ServedHost::setWindow(const Action& action) {
    const std::shared_ptr<Page> page = pages_.find(action.page);
    if (!page) {
        throw ProtocolError(kNotFound, "no such page: " + std::to_string(action.page));
    }
    const Ptr<adsk::core::TableCommandInput> table = input(action.input);
    if (!table) {
        throw ProtocolError(kConflict, "that input is not a table");
    }
    page->windows[host::keyOf(table)] = {.from = action.from, .count = action.count};
}

}  // namespace workbench::serve
