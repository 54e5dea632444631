#pragma once

#include "workbench/serve/pages.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace workbench::serve {

/// What is sent to one page: the state, then its changes. The page is open as long as it lives.
class EventStream {
public:
    EventStream(Pages& pages, std::shared_ptr<Page> page) : pages_(pages), page_(std::move(page)) {}
    EventStream(const EventStream&) = delete;
    EventStream& operator=(const EventStream&) = delete;
    ~EventStream() { pages_.remove(*page_); }

    /// Waits for the next event, for a second at most, and returns its text; an empty one where
    /// none came, a sign of life now and then, and none at the end of the stream.
    std::optional<std::string> next();

private:
    [[nodiscard]] std::string textOf(const State& state) const;

    Pages& pages_;
    std::shared_ptr<Page> page_;
    std::shared_ptr<const State> sent_;
    int pauses_ = 0;
};

}  // namespace workbench::serve
