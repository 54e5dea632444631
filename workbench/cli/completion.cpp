#include "workbench/cli/completion.h"

#include <functional>

namespace workbench {
namespace {

constexpr const char* kFolder = "DIR";  // what stands for a folder in `--help`
constexpr const char* kFile = "FILE";

std::string joined(const std::vector<std::string>& words) {
    std::string all;
    for (const std::string& each : words) {
        all += (all.empty() ? "" : " ") + each;
    }
    return all;
}

/// A text between single quotes, for any of the three shells.
std::string quotedFor(const std::string& text, const char* quote) {
    std::string result = "'";
    for (const char each : text) {
        result += each == '\'' ? std::string(quote) : std::string(1, each);
    }
    return result + "'";
}

/// Calls `visit` for each command with its words after the program's name, the program first.
void visitAll(const CommandSummary& command, const std::string& path,
              const std::function<void(const CommandSummary&, const std::string&)>& visit) {
    visit(command, path);
    for (const CommandSummary& each : command.commands) {
        visitAll(each, path.empty() ? each.name : path + " " + each.name, visit);
    }
}

/// All that can follow a command: its commands, its options, and the words its arguments take.
std::vector<std::string> wordsAfter(const CommandSummary& command) {
    std::vector<std::string> words;
    for (const CommandSummary& each : command.commands) {
        words.push_back(each.name);
    }
    for (const OptionSummary& each : command.arguments) {
        words.insert(words.end(), each.choices.begin(), each.choices.end());
    }
    for (const OptionSummary& each : command.options) {
        words.insert(words.end(), each.names.begin(), each.names.end());
    }
    return words;
}

bool takesFile(const OptionSummary& option) {
    return option.value.find(kFile) != std::string::npos;
}

/// The cases of bash in which the word before decides.
std::string bashValueCases(const CommandSummary& command, const std::string& path) {
    std::string cases;
    for (const OptionSummary& option : command.options) {
        for (const std::string& name : option.names) {
            const std::string label = "        " + quotedFor(path + " " + name, "'\\''") + ") ";
            if (!option.choices.empty()) {
                cases += label + "words=" + quotedFor(joined(option.choices), "'\\''") + " ;;\n";
            } else if (option.value == kFolder) {
                cases += label + "_tarnix_workbench_reply -d -- \"$current\"; return ;;\n";
            } else if (takesFile(option)) {
                cases += label + "_tarnix_workbench_reply -f -- \"$current\"; return ;;\n";
            } else if (!option.value.empty()) {
                cases += label + "return ;;\n";
            }
        }
    }
    return cases;
}

constexpr const char* kBashHead =
    R"(# Completion of tarnix-workbench for bash, generated from its options.
_tarnix_workbench_reply() {
    local IFS=$'\n'
    compopt -o filenames 2> /dev/null
    # shellcheck disable=SC2207
    COMPREPLY=($(compgen "$@"))
}

_tarnix_workbench() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local command='' words='' word
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        case "$command $word" in
)";

constexpr const char* kBashMiddle = R"(                command=${command:+$command }$word ;;
        esac
    done
    case "$command $previous" in
)";

constexpr const char* kBashTail = R"(    esac
    # shellcheck disable=SC2207
    COMPREPLY=($(compgen -W "$words" -- "$current"))
    if ((${#COMPREPLY[@]} == 0)) && [[ $current != -* ]]; then
        _tarnix_workbench_reply -f -- "$current"
    fi
}

complete -F _tarnix_workbench tarnix-workbench
)";

/// A text within the brackets of what describes an option to `_arguments`.
std::string zshText(const std::string& text) {
    std::string result;
    for (const char each : text) {
        result += each == '[' || each == ']' || each == ':' || each == '\\'
                      ? std::string("\\") + each
                      : std::string(1, each);
    }
    return result;
}

/// What completes a value: words, folders or files.
std::string zshAction(const OptionSummary& option) {
    if (!option.choices.empty()) {
        return "(" + joined(option.choices) + ")";
    }
    if (option.value == kFolder) {
        return "_files -/";
    }
    return takesFile(option) ? "_files" : " ";
}

std::string zshOption(const OptionSummary& option, const std::string& name) {
    const std::string value =
        option.value.empty() ? "" : ":" + zshText(option.value) + ":" + zshAction(option);
    const std::string repeat = option.value.empty() ? "" : "*";
    return " \\\n        " +
           quotedFor(repeat + name + "[" + zshText(option.description) + "]" + value, "'\\''");
}

std::string zshArguments(const CommandSummary& command) {
    std::string words;
    for (const OptionSummary& option : command.options) {
        for (const std::string& name : option.names) {
            words += zshOption(option, name);
        }
    }
    if (!command.commands.empty()) {
        words += " \\\n        '1:command:->command' '*::argument:->argument'";
    }
    for (const OptionSummary& argument : command.arguments) {
        const std::string action = argument.choices.empty() ? "_files" : zshAction(argument);
        words += " \\\n        " + quotedFor((argument.repeated ? "*:" : ":") +
                                                 zshText(argument.names.front()) + ":" + action,
                                             "'\\''");
    }
    return words;
}

std::string zshFunctionName(const std::string& path) {
    std::string name = "_tarnix-workbench" + (path.empty() ? "" : "_" + path);
    for (char& each : name) {
        each = each == ' ' ? '_' : each;
    }
    return name;
}

std::string zshFunction(const CommandSummary& command, const std::string& path) {
    std::string text = zshFunctionName(path) + "() {\n";
    if (command.commands.empty()) {
        return text + "    _arguments" + zshArguments(command) + "\n}\n\n";
    }
    text += "    local state line\n    local -a commands\n    commands=(\n";
    std::string cases;
    for (const CommandSummary& each : command.commands) {
        text += "        " + quotedFor(each.name + ":" + zshText(each.description), "'\\''") + "\n";
        cases += "            " + each.name + ") " +
                 zshFunctionName(path.empty() ? each.name : path + " " + each.name) + " ;;\n";
    }
    return text + "    )\n    _arguments -C" + zshArguments(command) +
           "\n    case $state in\n"
           "        command) _describe command commands ;;\n"
           "        argument) case $line[1] in\n" +
           cases + "        esac ;;\n    esac\n}\n\n";
}

/// The condition under which fish offers what belongs to a command.
std::string fishCondition(const CommandSummary& command, const std::string& path) {
    if (path.empty()) {
        return "__fish_use_subcommand";
    }
    const std::size_t space = path.find(' ');
    std::string condition = "__fish_seen_subcommand_from " + path.substr(0, space);
    if (space != std::string::npos) {
        condition += "; and __fish_seen_subcommand_from " + path.substr(space + 1);
    }
    std::vector<std::string> inner;
    for (const CommandSummary& each : command.commands) {
        inner.push_back(each.name);
    }
    return inner.empty() ? condition
                         : condition + "; and not __fish_seen_subcommand_from " + joined(inner);
}

std::string fishLine(const std::string& condition, const std::string& rest,
                     const std::string& description) {
    return "complete -c tarnix-workbench -n " + quotedFor(condition, "\\'") + rest + " -d " +
           quotedFor(description, "\\'") + "\n";
}

std::string fishValue(const OptionSummary& option) {
    if (option.value.empty()) {
        return "";
    }
    if (!option.choices.empty()) {
        return " -x -a " + quotedFor(joined(option.choices), "\\'");
    }
    if (option.value == kFolder) {
        return " -x -a '(__fish_complete_directories)'";
    }
    return takesFile(option) ? " -r -F" : " -x";
}

std::string fishCommand(const CommandSummary& command, const std::string& path) {
    const std::string condition = fishCondition(command, path);
    std::string text;
    for (const CommandSummary& each : command.commands) {
        text += fishLine(condition, " -f -a " + each.name, each.description);
    }
    for (const OptionSummary& option : command.options) {
        std::string names;
        for (const std::string& name : option.names) {
            names += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
        }
        text += fishLine(condition, names + fishValue(option), option.description);
    }
    for (const OptionSummary& argument : command.arguments) {
        if (!argument.choices.empty()) {
            text += fishLine(condition, " -f -a " + quotedFor(joined(argument.choices), "\\'"),
                             argument.description);
        }
    }
    return text;
}

}  // namespace

std::string bashCompletion(const CommandSummary& program) {
    std::string names;
    std::string values;
    std::string words;
    visitAll(program, "", [&](const CommandSummary& command, const std::string& path) {
        for (const CommandSummary& each : command.commands) {
            names += (names.empty() ? "" : " | ") + quotedFor(path + " " + each.name, "'\\''");
        }
        values += bashValueCases(command, path);
        words += "            " + quotedFor(path, "'\\''") +
                 ") words=" + quotedFor(joined(wordsAfter(command)), "'\\''") + " ;;\n";
    });
    return kBashHead + ("            " + names) + ")\n" + kBashMiddle + values +
           "        *) case \"$command\" in\n" + words + "        esac ;;\n" + kBashTail;
}

std::string zshCompletion(const CommandSummary& program) {
    std::string text =
        "#compdef tarnix-workbench\n"
        "# Completion of tarnix-workbench for zsh, generated from its options.\n\n";
    visitAll(program, "", [&](const CommandSummary& command, const std::string& path) {
        text += zshFunction(command, path);
    });
    return text +
           "if [[ $funcstack[1] == _tarnix-workbench ]]; then\n"
           "    _tarnix-workbench \"$@\"\n"
           "else\n"
           "    compdef _tarnix-workbench tarnix-workbench\n"
           "fi\n";
}

std::string fishCompletion(const CommandSummary& program) {
    std::string text = "# Completion of tarnix-workbench for fish, generated from its options.\n";
    visitAll(program, "", [&](const CommandSummary& command, const std::string& path) {
        text += fishCommand(command, path);
    });
    return text;
}

}  // namespace workbench
