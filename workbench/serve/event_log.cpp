#include "workbench/serve/event_log.h"

#include "host/base/utf8_path.h"

#include <utility>

namespace workbench::serve {
namespace {

constexpr std::size_t kMost = 200;

}  // namespace

void EventLog::follow(const host::Session& session) {
    const auto& thrown = session.uncaughtExceptions();
    for (; exceptions_ < thrown.size(); ++exceptions_) {
        const host::UncaughtException& each = thrown[exceptions_];
        add({{"kind", "exception"},
             {"event", each.event},
             {"input", each.inputId},
             {"type", each.type},
             {"text", each.text}});
    }
    const auto& misused = host::misuses();
    for (; misuses_ < misused.size(); ++misuses_) {
        add({{"kind", "misuse"},
             {"event", misused[misuses_].operation},
             {"text", misused[misuses_].text}});
    }
    const auto& shown = session.messages();
    for (; messages_ < shown.size(); ++messages_) {
        add({{"kind", "message"}, {"text", shown[messages_].text}});
    }
    const auto& read = session.importWarnings();
    for (; warnings_ < read.size(); ++warnings_) {
        add(read[warnings_]);
    }
}

void EventLog::beginSession() {
    exceptions_ = 0;
    misuses_ = 0;
    messages_ = 0;
    warnings_ = 0;
}

void EventLog::add(const host::ReadingWarning& warning) { addWarning(warning.line()); }

void EventLog::addWarning(const std::string& text) {
    add(Json{{"kind", "warning"}, {"text", text}});
}

void EventLog::add(Json entry) {
    entry["n"] = newest_++;
    entries_.push_back(std::move(entry));
    if (entries_.size() > kMost) {
        entries_.erase(entries_.begin());
    }
}

}  // namespace workbench::serve
