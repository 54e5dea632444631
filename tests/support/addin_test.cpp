#include "tests/support/addin_test.h"

#include "tests/support/documented_points.h"
#include "tests/support/files.h"
#include "tests/support/outline.h"
#include "tests/support/settings.h"
#include "tests/support/table_text.h"

#include "host/session/environment.h"

#include <algorithm>

namespace test_support {
namespace {

using namespace adsk::core;

bool endsExport(const host::UncaughtException& thrown) {
    return thrown.inputId == kExportButton && thrown.text == "invalid stoi argument";
}

}  // namespace

host::SessionOptions addinOptions() {
    const std::filesystem::path program = host::environment::programFolder();
    host::SessionOptions options;
    options.host.documented = documentedPointsOfTests();
    options.addin = program / TEST_ADDIN_FOLDER;
    options.scratchRoot = program / TEST_PRIVATE_FOLDER;
    return options;
}

host::SessionOptions addinWithIconsOptions() {
    host::SessionOptions options = addinOptions();
    options.addin = options.addin.parent_path().parent_path() / "Tarnix";
    return options;
}

void AddinTest::SetUp() {
    restart(options());
    if (runsAtStart()) {
        ASSERT_TRUE(run()) << uncaughtExceptions();
    }
}

void AddinTest::TearDown() { endSession(); }

void AddinTest::restart(host::SessionOptions with) {
    endSession();
    session = std::make_unique<host::Session>(std::move(with));
}

void AddinTest::endSession() {
    if (session) faults.verify();
    session.reset();
}

void AddinTest::open(const std::string& outline) { session->openOutline(addinOutline(outline)); }

void AddinTest::configure(const std::vector<std::string>& items) {
    writeFile(settingsFile(), settingsDocument(items));
}

void AddinTest::openBom() { session->press("QM_TX_BOM"); }

void AddinTest::showStructure() {
    if (!session->dialogOpen()) openBom();
    session->activateTab(kStructureTab);
}

void AddinTest::showModel() {
    if (!session->dialogOpen()) openBom();
    session->activateTab(kModelTab);
}

void AddinTest::showConfiguration() {
    if (!session->dialogOpen()) openBom();
    session->activateTab(kConfigurationTab);
}

void AddinTest::exportBom() {
    const bool wasQuiet = session->uncaughtExceptions().empty();
    session->click(kExportButton);
    if (wasQuiet && session->uncaughtExceptions().size() == 1 &&
        endsExport(faults.exceptions().front())) {
        faults.forgetExceptions();
    }
}

Ptr<TableCommandInput> AddinTest::shownTableInput() const {
    const Ptr<CommandInputs> inputs = session->dialog()->commandInputs();
    for (const auto& [tab, table] :
         {std::pair{kStructureTab, kStructureTable}, std::pair{kModelTab, kModelTable},
          std::pair{kConfigurationTab, kConfigurationTable}}) {
        const Ptr<TabCommandInput> page = inputs->itemById(tab);
        if (page && page->isActive()) return page->children()->itemById(table);
    }
    return nullptr;
}

std::string AddinTest::table() const { return bomText(shownTableInput()); }

std::string AddinTest::shownTable() const { return tableText(shownTableInput()); }

std::string AddinTest::csv() const { return readFile(csvFile()); }

std::string AddinTest::uncaughtExceptions() { return describe(faults.exceptions()); }

std::string AddinTest::misuses() { return describe(faults.misuses()); }

std::filesystem::path AddinTest::moduleFolder() const { return session->addin().folder; }

std::filesystem::path AddinTest::settingsFile() const {
    return moduleFolder() / "Tarnix_configuration.xml";
}

std::filesystem::path AddinTest::csvFile() const { return moduleFolder() / "TarnixBOM.csv"; }

}  // namespace test_support
