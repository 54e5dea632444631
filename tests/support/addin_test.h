#pragma once

#include "tests/support/fault_watch.h"
#include "tests/support/text.h"

#include "host/session/session.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace test_support {

inline constexpr const char* kStructureTab = "QEMA_tab_structure_BOM";
inline constexpr const char* kModelTab = "QEMA_tab_models_BOM";
inline constexpr const char* kConfigurationTab = "QEMA_tab_config_BOM";
inline constexpr const char* kStructureTable = "QEMA_bom_structure";
inline constexpr const char* kModelTable = "QEMA_bom_models";
inline constexpr const char* kConfigurationTable = "QEMA_bom_config_table";
inline constexpr const char* kExportButton = "QEMA_btnExportXls";

/// The add-in as it was built, for tests that make sessions of their own. The variable
/// TARNIX_TEST_HOST_POINTS turns the host over to what is documented: "all", or the names of some
/// points with commas between them.
host::SessionOptions addinOptions();

/// The same with the add-in's icons, which take time to copy.
host::SessionOptions addinWithIconsOptions();

/// A test that uses the add-in through its loaded module, as the user at the host does.
///
/// Each test has a fresh session: private folders, default settings, statics as after loading.
/// `run` is called before the test's body, except in a fixture that overrides `runsAtStart`. At the
/// session's end the test fails on every uncaught exception and every misuse that it did not name;
/// see `FaultWatch`.
class AddinTest : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Whether the module's `run` is called before the body, and has to succeed.
    [[nodiscard]] virtual bool runsAtStart() const { return true; }

    /// What the session is started with; the default is `addinOptions`.
    [[nodiscard]] virtual host::SessionOptions options() const { return addinOptions(); }

    /// Ends the session; what the host reported by then has to be named.
    void endSession();

    /// Starts over with another session, as after the host's end and a new start of it.
    void restart(host::SessionOptions with);

    /// @name Steps
    /// @{

    /// Opens a design drawn as an outline, which may hold `structure=` and `property=`.
    void open(const std::string& outline);

    /// Makes these the columns of the BOM tables: key and caption of each, as in "QEMA_Mass;Mass".
    /// To be called before the dialog opens.
    void configure(const std::vector<std::string>& items);

    bool run() { return session->run(); }
    bool stop() { return session->stop(); }

    /// Presses BOM.
    void openBom();

    /// Goes to a tab of the BOM dialog, which is opened if it is not.
    void showStructure();
    void showModel();
    void showConfiguration();

    /// Presses the export button of the shown tab. The exception that always follows is named and
    /// forgotten where it is the only one.
    void exportBom();
    /// @}

    /// @name What is seen
    /// @{

    /// The shown rows of the shown tab's table, without the captions: position, picture and part
    /// number, then the shown configured columns, separated by " | " and aligned.
    [[nodiscard]] std::string table() const;

    /// All that the shown tab's table shows, captions and hidden positions included: a line for
    /// each shown row, a string for each shown column.
    [[nodiscard]] std::string shownTable() const;

    /// The table of the shown tab.
    [[nodiscard]] adsk::core::Ptr<adsk::core::TableCommandInput> shownTableInput() const;

    /// The bytes of the exported file; empty if there is none.
    [[nodiscard]] std::string csv() const;

    /// What was thrown, a line for each: class, string, event and input. Reading names it.
    [[nodiscard]] std::string uncaughtExceptions();

    /// The calls that the module should not have made, a line for each. Reading names them.
    [[nodiscard]] std::string misuses();

    /// The session's copy of the add-in.
    [[nodiscard]] std::filesystem::path moduleFolder() const;
    [[nodiscard]] std::filesystem::path settingsFile() const;
    [[nodiscard]] std::filesystem::path csvFile() const;
    /// @}

    std::unique_ptr<host::Session> session;

    /// What the host reports against the module, and which of it the test expects.
    FaultWatch faults{FaultWatch::KnownFaults::Excused};
};

}  // namespace test_support
