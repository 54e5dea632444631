#include "workbench/output/reports.h"

#include "workbench/cli/console.h"
#include "workbench/cli/quiet.h"
#include "workbench/output/display_text.h"
#include "workbench/output/result_stream.h"

#include "host/base/utf8_path.h"

#include <algorithm>
#include <iostream>
#include <set>
#include <sstream>

namespace workbench {
namespace {

/// A target as this system spells it: the add-in speaks of paths as Windows does.
std::string nativeTarget(std::string target) {
    const bool isAddress = target.find("://") != std::string::npos;
    if (!isAddress && std::filesystem::path::preferred_separator == '/') {
        std::ranges::replace(target, '\\', '/');
    }
    return target;
}

/// Why a target was not opened; empty where it was passed on to the system.
std::string whyNotOpened(bool mayOpen) {
    if (!mayOpen) {
        return "--open lets the add-in do that";
    }
    return console::opensFiles() ? "" : "this system has no xdg-open";
}

/// Each line of a text that may have several.
void printLines(const std::string& begin, const std::string& text) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::cerr << begin << printable(line) << "\n";
    }
}

}  // namespace

void reportSaved(std::ostream& stream, const std::filesystem::path& file) {
    stream << "Saved: " << printable(host::toUtf8(file)) << "\n";
}

void reportShellRequests(std::ostream& stream, const std::vector<std::string>& targets,
                         bool mayOpen) {
    std::set<std::string> reported;
    for (const std::string& target : isQuiet() ? std::vector<std::string>() : targets) {
        const std::string native = nativeTarget(target);
        if (!reported.insert(native).second) {
            continue;
        }
        const std::string why = whyNotOpened(mayOpen);
        stream << (why.empty() ? "Opened: " : "Not opened: ") << printable(native)
               << (why.empty() ? "\n" : " (" + why + ")\n");
    }
}

void reportMessages(const std::vector<host::Message>& messages, std::size_t since) {
    for (std::size_t i = since; i < messages.size() && !isQuiet(); ++i) {
        printLines("the add-in says: ", messages[i].text);
    }
}

void refuseObstacles(ExitCode code, const std::vector<std::string>& obstacles) {
    for (std::size_t i = 0; i + 1 < obstacles.size(); ++i) {
        std::cerr << "tarnix-workbench: " << printable(obstacles[i]) << "\n";
    }
    if (!obstacles.empty()) {
        throw Failure(code, obstacles.back());
    }
}

void flushOutput() {
    if (!std::cout.flush()) {
        throw Failure(ExitCode::OutputFailed, whyOutputFailed());
    }
}

void reportWarnings(const std::vector<host::ReadingWarning>& warnings) {
    if (isQuiet()) {
        return;
    }
    for (const host::ReadingWarning& warning : warnings) {
        printLines("warning: ", warning.line());
    }
}

void reportFailures(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        printLines("failed: ", line);
    }
}

}  // namespace workbench
