#include "tests/fuzz/fuzzed_session.h"

#include "tests/fuzz/actions.h"
#include "tests/fuzz/chosen_design.h"
#include "tests/support/addin_test.h"
#include "tests/support/files.h"
#include "tests/support/settings.h"
#include "tests/support/written_strings.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>
#include <vector>

namespace fuzz {
namespace {

using host::Session;

constexpr const char* kBom = "QM_TX_BOM";
constexpr const char* kSaveColumns = "QEMA_btnSaveConfigBom";

host::SessionOptions optionsFor(host::CodeChanges reported) {
    host::SessionOptions options = test_support::addinOptions();
    options.host.codeChanges = reported;
    return options;
}

std::filesystem::path settingsFile(const Session& session) {
    return session.addin().folder / "Tarnix_configuration.xml";
}

/// Columns for the dialog's tables, up to seven.
std::string chosenSettings(Choices& choices) {
    constexpr std::array kItems = {"QEMA_Part Name;Name",  "QEMA_Description;Text",
                                   "QEMA_Quantity;Qty",    "QEMA_Mass;Mass",
                                   "QEMA_Supplier;From",   "QEMA_a_b;ab",
                                   "QEMA_Part Number;No.", "QEMA_Bounding Box;Box"};
    std::vector<std::string> items;
    for (std::size_t count = choices.below(kItems.size()); items.size() < count;) {
        items.emplace_back(choices.pick(kItems));
    }
    return test_support::settingsDocument(items);
}

/// What was thrown although the add-in is not known to throw it.
std::string findUnknown(const Session& session) {
    constexpr std::array kKnown = {"std::exception", "std::out_of_range", "std::invalid_argument",
                                   "_com_error"};
    for (const host::UncaughtException& thrown : session.uncaughtExceptions()) {
        if (std::find(kKnown.begin(), kKnown.end(), thrown.type) == kKnown.end()) {
            return thrown.type + " (" + thrown.text + ") in " + thrown.event + " of " +
                   thrown.inputId;
        }
    }
    return "";
}

host::DesignData twoParts() {
    host::DesignData design;
    design.name = "Design";
    for (const char* name : {"Design", "Bolt", "Plate"}) {
        design.components.emplace_back().name = name;
    }
    for (const std::size_t part : {1, 2}) {
        design.components.front().children.emplace_back().component = part;
    }
    return design;
}

}  // namespace

FuzzedSession::FuzzedSession(host::CodeChanges reported) : session_(optionsFor(reported)) {
    session_.run();
}

void FuzzedSession::begin(const std::string& settings, host::DesignData design) {
    test_support::writeFile(settingsFile(session_), settings);
    session_.openDesign(std::move(design));
}

std::string FuzzedSession::end() {
    if (session_.dialogOpen()) session_.cancel();
    std::string unknown = findUnknown(session_);
    session_.clearUncaughtExceptions();
    return unknown;
}

/// Accepts the dialog. Returns a string that the design then holds and that was never written.
std::string FuzzedSession::accept() {
    test_support::WrittenStrings written(session_.design());
    if (const auto table = shownTable(session_)) written.addTable(table);
    session_.ok();
    return written.findUnexpected(session_.design());
}

std::string FuzzedSession::step(Choices& choices) {
    if (!session_.dialogOpen()) {
        session_.press(kBom);
        return "";
    }
    constexpr std::size_t kKinds = 16;
    const std::size_t kind = choices.below(kKinds);
    if (kind == 0) return accept();
    if (kind == 1) {
        session_.cancel();
    } else if (kind < 5) {
        changeTab(session_, choices);
    } else if (kind < 7) {
        actBesideTables(session_, choices);
    } else {
        actInTable(session_, choices);
    }
    return "";
}

std::string FuzzedSession::useDialog(Bytes bytes) {
    Choices choices(bytes);
    const std::string settings = chosenSettings(choices);
    begin(settings, chosenDesign(choices));
    std::string stranger;
    while (!choices.isOver() && stranger.empty()) stranger = step(choices);
    const std::string unknown = end();
    return stranger.empty() ? unknown : "never written: \"" + stranger + "\"";
}

/// Saves the columns where the dialog came so far as to offer it. Returns that the second save
/// wrote something else than the first, if it did.
std::string FuzzedSession::saveColumnsTwice() {
    showTab(session_, test_support::kConfigurationTab);
    if (!session_.dialog()->commandInputs()->itemById(kSaveColumns)) return "";
    session_.click(kSaveColumns);
    const std::string first = test_support::readFile(settingsFile(session_));
    session_.click(kSaveColumns);
    const std::string second = test_support::readFile(settingsFile(session_));
    return first == second ? "" : "saved again as " + second;
}

std::string FuzzedSession::useSettings(Bytes bytes) {
    begin(std::string(bytes.begin(), bytes.end()), twoParts());
    std::string differs;
    session_.press(kBom);
    if (session_.dialogOpen()) {
        showTab(session_, test_support::kStructureTab);
        differs = saveColumnsTwice();
        session_.ok();
    }
    for (const char* command : {"QEMA_EditPropertiesCmd", "QM_TX_configuration"}) {
        session_.press(command);
        if (session_.dialogOpen()) session_.cancel();
    }
    const std::string unknown = end();
    return differs.empty() ? unknown : differs;
}

}  // namespace fuzz
