#include "tests/workbench/helpdesk_fixture.h"

namespace fs = std::filesystem;
namespace environment = host::environment;

void HelpdeskOfTheWorkbench::SetUp() {
    fs::create_directories(mine());
    fs::create_directories(stand());
    test_support::writeFile(stand() / "kept", "x");
    for (const char* const data : {"XDG_DATA_HOME", "LOCALAPPDATA"}) {
        set(data, folder.path() / "data");
    }
    for (const char* const temporary : {"TMPDIR", "TMP"}) {
        set(temporary, mine());
    }
    set("DISPLAY", std::nullopt);
    startedIn_ = fs::current_path();
    fs::current_path(stand());
}

void HelpdeskOfTheWorkbench::TearDown() {
    fs::current_path(startedIn_);
    for (const auto& [name, value] : before_) {
        environment::setVariable(name, value);
    }
}

void HelpdeskOfTheWorkbench::set(const std::string& name, const std::optional<fs::path>& value) {
    const environment::Text native = fs::path(name).native();
    before_.emplace(before_.begin(), native, environment::variable(native));
    environment::setVariable(native, value ? std::optional(value->native()) : std::nullopt);
}

fs::path HelpdeskOfTheWorkbench::support() const {
    return folder.path() / "data" / "tarnix-workbench" / "temp" / "Helpdesk";
}

test_support::ProgramResult HelpdeskOfTheWorkbench::helpdesk(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "helpdesk");
    return test_support::runProgram("tarnix-workbench", arguments);
}
