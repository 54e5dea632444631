#include "workbench/cli/man_page.h"

#include "workbench/cli/exit_code.h"

#include <algorithm>
#include <cstddef>

namespace workbench {
namespace {

/// The text as troff shows it unchanged.
std::string escaped(const std::string& text) {
    std::string result;
    for (const char each : text) {
        if (each == '\\') {
            result += "\\e";
        } else if (each == '-') {
            result += "\\-";
        } else {
            result += each;
        }
    }
    return result;
}

/// A line of text, which must not begin as a request does.
std::string textLine(const std::string& text) {
    const bool isRequest = text.starts_with('.') || text.starts_with('\'');
    return (isRequest ? "\\&" : "") + escaped(text) + "\n";
}

std::string section(const std::string& title) { return ".SH " + title + "\n"; }

std::string bold(const std::string& text) { return "\\fB" + escaped(text) + "\\fR"; }
std::string italic(const std::string& text) { return "\\fI" + escaped(text) + "\\fR"; }

std::string head(const OptionSummary& option, bool isArgument) {
    std::string names;
    for (const std::string& each : option.names) {
        names += (names.empty() ? "" : ", ") + (isArgument ? italic(each) : bold(each));
    }
    return isArgument || option.value.empty() ? names : names + " " + italic(option.value);
}

std::string listed(const std::vector<std::string>& words) {
    std::string all;
    for (const std::string& each : words) {
        all += (all.empty() ? "" : ", ") + each;
    }
    return all;
}

std::string details(const OptionSummary& option) {
    std::string text = textLine(option.description + ".");
    if (!option.choices.empty()) {
        text += textLine("One of: " + listed(option.choices) + ".");
    }
    if (!option.byDefault.empty()) {
        text += textLine("Default: " + option.byDefault + ".");
    }
    return text;
}

std::string optionList(const std::vector<OptionSummary>& options, bool isArgument) {
    std::string text;
    for (const OptionSummary& each : options) {
        text += ".TP\n" + head(each, isArgument) + "\n" + details(each);
    }
    return text;
}

std::string synopsis(const CommandSummary& command) {
    std::string line = bold(command.name);
    for (const OptionSummary& each : command.arguments) {
        const std::string name = italic(each.names.front()) + (each.repeated ? " ..." : "");
        line += each.required ? " " + name : " [" + name + "]";
    }
    return line + (command.commands.empty() ? "" : " " + italic("COMMAND")) + " [" +
           italic("OPTION") + " ...]";
}

/// Lines that keep their ends.
std::string preformatted(const std::string& text) {
    std::string result = ".PP\n.nf\n";
    std::size_t begin = 0;
    while (begin < text.size()) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        result += textLine(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return result + ".fi\n";
}

std::string commandText(const CommandSummary& command, const std::string& parents) {
    CommandSummary full = command;
    full.name = parents + command.name;
    std::string text = ".SS " + synopsis(full) + "\n" + textLine(command.description + ".");
    text += optionList(command.arguments, /*isArgument=*/true);
    text += optionList(command.options, /*isArgument=*/false);
    if (!command.footer.empty()) {
        text += preformatted(command.footer);
    }
    for (const CommandSummary& each : command.commands) {
        text += commandText(each, full.name + " ");
    }
    return text;
}

std::string exitStatus() {
    std::string text = section("EXIT STATUS");
    for (const ExitMeaning& each : kExitMeanings) {
        text += ".TP\n" + bold(std::to_string(static_cast<int>(each.code))) + "\n" +
                textLine(each.meaning + std::string("."));
    }
    return text;
}

constexpr const char* kFiles =
    ".SH FILES\n"
    ".TP\n"
    "\\fI$XDG_DATA_HOME/tarnix\\-workbench\\fR, \\fI~/.local/share/tarnix\\-workbench\\fR\n"
    "What the program keeps for a user: the add\\-in's copy with its settings, and uploads.\n";

}  // namespace

std::string manPage(const CommandSummary& program, const std::string& version) {
    std::string text = ".TH TARNIX\\-WORKBENCH 1 \"\" \"" + escaped(version) + "\"\n";
    text += section("NAME") + escaped(program.name) +
            " \\- run a CAD add\\-in on an assembly without its CAD system\n";
    text += section("SYNOPSIS") + synopsis(program) + "\n";
    text += section("DESCRIPTION") + textLine(program.description + ".");
    text += section("OPTIONS") + optionList(program.options, /*isArgument=*/false);
    text += section("COMMANDS");
    for (const CommandSummary& each : program.commands) {
        text += commandText(each, "");
    }
    return text + exitStatus() + kFiles;
}

}  // namespace workbench
