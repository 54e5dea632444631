#include "workbench/output/run_step.h"

#include "workbench/output/dialog_json.h"
#include "workbench/output/dialog_text.h"
#include "workbench/output/display_text.h"
#include "workbench/output/fault_lines.h"

#include <nlohmann/json.hpp>

#include <sstream>

namespace workbench {
namespace {

using RunJson = nlohmann::ordered_json;

void addLine(std::string& text, const std::string& line) {
    if (!line.empty()) {
        text += "  " + printable(line) + "\n";
    }
}

void addLines(std::string& text, const std::string& begin, const std::vector<std::string>& lines) {
    for (const std::string& each : lines) {
        addLine(text, begin + each);
    }
}

std::string nextLine(std::istream& lines) {
    std::string line;
    std::getline(lines, line);
    if (line.ends_with('\r')) {
        line.pop_back();
    }
    return line;
}

/// A text of the add-in's own: its further lines are indented below the first one.
void addText(std::string& text, const std::string& begin, const std::string& lines) {
    std::istringstream all(lines);
    addLine(text, begin + nextLine(all));
    while (all.good()) {
        const std::string line = nextLine(all);
        addLine(text, line.empty() ? "" : "  " + line);
    }
}

/// How a message begins; one without a title has the name of the add-in there.
std::string saying(const host::Message& message) {
    return "the add-in says" + (message.title.empty() ? "" : " in \"" + message.title + "\"") +
           ": ";
}

RunJson faultsObject(const RunStep& step) {
    RunJson all = RunJson::array();
    for (const host::UncaughtException& each : step.thrown) {
        all.push_back({{"kind", "exception"},
                       {"event", each.event},
                       {"input", each.inputId},
                       {"type", each.type},
                       {"text", each.text}});
    }
    for (const host::Misuse& each : step.misused) {
        all.push_back({{"kind", "misuse"},
                       {"event", each.event},
                       {"input", each.inputId},
                       {"operation", each.operation},
                       {"text", each.text}});
    }
    return all;
}

RunJson messagesOf(const RunStep& step) {
    RunJson all = RunJson::array();
    for (const host::Message& each : step.messages) {
        all.push_back({{"title", each.title}, {"text", each.text}});
    }
    return all;
}

RunJson stepObject(const RunStep& step) {
    return {{"step", step.name},
            {"outcome", step.outcome},
            {"failed", step.failed},
            {"faults", faultsObject(step)},
            {"messages", messagesOf(step)},
            {"log", step.log},
            {"opened", step.opened},
            {"commands", step.commands},
            {"changes", step.changes},
            {"dialog", step.dialog ? RunJson::parse(asJson(*step.dialog)) : RunJson()}};
}

}  // namespace

std::size_t faultsIn(const RunStep& step) {
    return step.thrown.size() + step.misused.size() + (step.failed ? 1 : 0);
}

std::string firstFault(const RunStep& step) {
    if (!step.thrown.empty()) {
        return describe(step.thrown.front());
    }
    if (!step.misused.empty()) {
        return describe(step.misused.front());
    }
    return step.failed ? step.name + " " + step.outcome : "";
}

std::string asText(const RunStep& step) {
    std::string text;
    addLine(text, step.outcome);
    for (const host::UncaughtException& each : step.thrown) {
        addLine(text, describe(each));
    }
    for (const host::Misuse& each : step.misused) {
        addLine(text, describe(each));
    }
    for (const host::Message& each : step.messages) {
        addText(text, saying(each), each.text);
    }
    for (const std::string& each : step.log) {
        addText(text, "log: ", each);
    }
    addLines(text, "asked to open: ", step.opened);
    addLines(text, "command: ", step.commands);
    addLines(text, "change: ", step.changes);
    return step.dialog ? text + asText(*step.dialog) : text;
}

std::string asJson(const std::vector<RunStep>& steps) {
    RunJson all = RunJson::array();
    std::size_t faults = 0;
    for (const RunStep& each : steps) {
        faults += faultsIn(each);
        all.push_back(stepObject(each));
    }
    constexpr int kIndent = 2;
    return RunJson({{"faults", faults}, {"steps", all}})
               .dump(kIndent, ' ', /*ensure_ascii=*/false, RunJson::error_handler_t::replace) +
           "\n";
}

}  // namespace workbench
