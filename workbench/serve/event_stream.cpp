#include "workbench/serve/event_stream.h"

namespace workbench::serve {
namespace {

std::string event(const char* name, const Json& data) {
    return "event: " + std::string(name) + "\ndata: " + serve::textOf(data) + "\n\n";
}

}  // namespace

std::optional<std::string> EventStream::next() {
    const std::shared_ptr<const State> state = page_->next(sent_ ? sent_->revision : 0);
    if (page_->isClosed()) {
        return std::nullopt;
    }
    if (!state) {
        constexpr int kSignOfLife = 15;
        return ++pauses_ % kSignOfLife == 0 ? ": still there\n\n" : "";
    }
    std::string text = textOf(*state);
    sent_ = state;
    return text;
}

std::string EventStream::textOf(const State& state) const {
    if (!sent_) {
        return event("state", {{"version", 1},
                               {"page", page_->number()},
                               {"revision", state.revision},
                               {"state", documentOf(state)}});
    }
    return event("change", {{"revision", state.revision}, {"patch", patchBetween(*sent_, state)}});
}

}  // namespace workbench::serve
