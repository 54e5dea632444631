#include "workbench/output/run_step.h"

#include "workbench/output/dialog_json.h"
#include "workbench/output/dialog_text.h"
#include "workbench/output/display_text.h"
#include "workbench/output/fault_lines.h"

#include <nlohmann/json.hpp>

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
        addLine(text, "the add-in says: " + each.text);
    }
    addLines(text, "log: ", step.log);
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
