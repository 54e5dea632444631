#include "tests/workbench/helpdesk_fixture.h"

namespace fs = std::filesystem;

void Helpdesk::SetUp() {
    fs::create_directories(userTemp());
    fs::create_directories(workingDirectory());
    test_support::writeFile(workingDirectory() / "kept", "x");
    variables.setUserData(folder.path() / "data");
    variables.set("TMPDIR", userTemp());
    variables.set("TMP", userTemp());
    variables.set("DISPLAY", std::nullopt);
    startedIn_ = fs::current_path();
    fs::current_path(workingDirectory());
}

void Helpdesk::TearDown() { fs::current_path(startedIn_); }

fs::path Helpdesk::support() const {
    return folder.path() / "data" / "tarnix-workbench" / "temp" / "Helpdesk";
}

test_support::ProgramResult Helpdesk::helpdesk(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "helpdesk");
    return test_support::runProgram("tarnix-workbench", arguments);
}
