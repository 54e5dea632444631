#include "workbench/cli/common_options.h"
#include "workbench/cli/exit_code.h"
#include "workbench/commands/commands.h"
#include "workbench/dialogs/addin_ids.h"
#include "workbench/dialogs/dialog_session.h"
#include "workbench/output/display_text.h"
#include "workbench/output/reports.h"
#include "workbench/output/staged_files.h"

#include <cstddef>
#include <iostream>

namespace workbench {
namespace {

using namespace adsk::core;

constexpr const char* kDefault = "default";
constexpr std::size_t kDefaultProvider = 0;
constexpr std::size_t kOtherProvider = 1;

struct ConfigureOptions {
    std::optional<std::string> supportUrl;  ///< an address, or "default"; none: only print
    AddinChoice addin;
};

void choose(host::Session& session, std::size_t provider) {
    const Ptr<RadioButtonGroupCommandInput> choice = session.input(kProviderChoice);
    session.choose(kProviderChoice, choice->listItems()->item(provider)->name());
}

/// The settings do not keep white space at the ends.
void refuseUnusableAddress(const std::string& url) {
    constexpr const char* kWhiteSpace = " \t\r\n";
    if (!url.empty() && (url.find_first_not_of(kWhiteSpace) != 0 ||
                         url.find_last_not_of(kWhiteSpace) != url.size() - 1)) {
        refuse("--support-url \"" + url + "\": an address must not begin or end with a space");
    }
}

void change(host::Session& session, const std::string& url) {
    if (url == kDefault) {
        choose(session, kDefaultProvider);
    } else {
        choose(session, kOtherProvider);
        session.paste(kProviderAddress, url);
    }
    session.ok();
}

/// The add-in does not report an address that its settings do not take, such as those that have no
/// place for one.
void refuseUntaken(const host::Session& session, const std::string& asked) {
    const Ptr<TextBoxCommandInput> address = session.input(kProviderAddress);
    const bool isTaken = asked == kDefault ? !address->isVisible() : address->text() == asked;
    if (!isTaken) {
        throw Failure(ExitCode::AddinFailed, "--support-url \"" + asked +
                                                 "\": the add-in's settings hold \"" +
                                                 address->text() + "\" instead");
    }
}

/// The address in the dialog, and whether it is the default one.
std::string readProvider(const host::Session& session) {
    const Ptr<TextBoxCommandInput> address = session.input(kProviderAddress);
    if (address->isVisible()) {
        return address->text().empty() ? "none" : address->text();
    }
    return address->text() + " (default)";
}

/// Chooses this user's support provider in the add-in's dialog, if one is given, and prints what
/// the dialog then shows.
void runConfigure(const ConfigureOptions& options) {
    refuseUnusableAddress(options.supportUrl.value_or(""));
    DialogSession dialog(options.addin, options.supportUrl ? DataUse::Change : DataUse::Read);
    if (options.supportUrl) {
        dialog.open(kConfigurationCommand);
        dialog.act([&](host::Session& session) { change(session, *options.supportUrl); });
    }
    dialog.open(kConfigurationCommand);
    if (options.supportUrl) {
        refuseUntaken(dialog.session(), *options.supportUrl);
    }
    std::cout << "Support provider: " << printable(readProvider(dialog.session())) << "\n";
    dialog.act([](host::Session& session) { session.cancel(); });
    StagedFiles files;
    if (options.supportUrl) {
        dialog.folder().stageSettings(files);
    }
    flushOutput();
    files.commit();
}

}  // namespace

void addConfigureCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "configure", "Print or choose the provider of the add-in's support");
    ConfigureOptions& options = optionsFor(command, runConfigure);
    command
        .add_option("--support-url", options.supportUrl,
                    "The web address of the provider, or \"default\"")
        ->type_name("URL|default");
    addAddin(command, options.addin);
}

}  // namespace workbench
