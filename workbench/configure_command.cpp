#include "workbench/configure_command.h"

#include "workbench/dialog_run.h"
#include "workbench/display_text.h"
#include "workbench/exit_code.h"

#include <cstddef>
#include <iostream>

namespace workbench {
namespace {

using namespace adsk::core;

constexpr const char* kCommand = "QM_TX_configuration";
constexpr const char* kChoice = "choiceProvider";
constexpr const char* kAddress = "helpdeskOther";
constexpr std::size_t kDefaultProvider = 0;
constexpr std::size_t kOtherProvider = 1;

void choose(host::Session& session, std::size_t provider) {
    const Ptr<RadioButtonGroupCommandInput> choice = session.input(kChoice);
    session.choose(kChoice, choice->listItems()->item(provider)->name());
}

void change(host::Session& session, const std::string& url) {
    if (url == "default") {
        choose(session, kDefaultProvider);
    } else {
        choose(session, kOtherProvider);
        session.paste(kAddress, url);
    }
    session.ok();
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
    DialogRun run(options.addin);
    if (options.supportUrl) {
        run.open(kCommand);
        run.act([&](host::Session& session) { change(session, *options.supportUrl); });
    }
    run.open(kCommand);
    std::cout << "Support provider: " << printable(shownProvider(run.session())) << "\n";
    run.act([](host::Session& session) { session.cancel(); });
    if (!std::cout.flush()) {
        throw Failure(ExitCode::OutputFailed, "cannot write to stdout");
    }
}

}  // namespace workbench
