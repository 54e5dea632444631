#include "workbench/commands/configure_command.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/dialog_session.h"
#include "workbench/output/display_text.h"

#include <cstddef>
#include <iostream>

namespace workbench {
namespace {

using namespace adsk::core;

constexpr const char* kCommand = "QM_TX_configuration";
constexpr const char* kChoice = "choiceProvider";
constexpr const char* kAddress = "helpdeskOther";
constexpr const char* kDefault = "default";
constexpr std::size_t kDefaultProvider = 0;
constexpr std::size_t kOtherProvider = 1;

void choose(host::Session& session, std::size_t provider) {
    const Ptr<RadioButtonGroupCommandInput> choice = session.input(kChoice);
    session.choose(kChoice, choice->listItems()->item(provider)->name());
}

void refuseUnusableAddress(const std::string& url) {
    constexpr const char* kBlanks = " \t\r\n";
    if (!url.empty() &&
        (url.find_first_not_of(kBlanks) != 0 || url.find_last_not_of(kBlanks) != url.size() - 1)) {
        throw Failure(ExitCode::BadUsage, "--support-url \"" + url +
                                              "\": the settings keep no blank at the ends of an "
                                              "address");
    }
}

void change(host::Session& session, const std::string& url) {
    if (url == kDefault) {
        choose(session, kDefaultProvider);
    } else {
        choose(session, kOtherProvider);
        session.paste(kAddress, url);
    }
    session.ok();
}

/// The add-in tells nobody of an address that its settings do not take, such as those that have no
/// place for one.
void refuseUntaken(const host::Session& session, const std::string& asked) {
    const Ptr<TextBoxCommandInput> address = session.input(kAddress);
    const bool isTaken = asked == kDefault ? !address->isVisible() : address->text() == asked;
    if (!isTaken) {
        throw Failure(ExitCode::AddinFailed, "--support-url \"" + asked +
                                                 "\": the add-in's settings hold \"" +
                                                 address->text() + "\" instead");
    }
}

/// The address that is stored, and whether it is the default one.
std::string shownProvider(const host::Session& session) {
    const Ptr<TextBoxCommandInput> address = session.input(kAddress);
    if (address->isVisible()) {
        return address->text().empty() ? "none" : address->text();
    }
    return address->text() + " (default)";
}

}  // namespace

void runConfigure(const ConfigureOptions& options) {
    refuseUnusableAddress(options.supportUrl.value_or(""));
    DialogRun run(options.addin);
    if (options.supportUrl) {
        run.open(kCommand);
        run.act([&](host::Session& session) { change(session, *options.supportUrl); });
    }
    run.open(kCommand);
    if (options.supportUrl) {
        refuseUntaken(run.session(), *options.supportUrl);
    }
    std::cout << "Support provider: " << printable(shownProvider(run.session())) << "\n";
    run.act([](host::Session& session) { session.cancel(); });
    if (!std::cout.flush()) {
        throw Failure(ExitCode::OutputFailed, "cannot write to stdout");
    }
}

}  // namespace workbench
