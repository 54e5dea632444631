#pragma once

#include "workbench/serve/json.h"

#include "host/design/reading_warning.h"
#include "host/session/session.h"

#include <cstddef>
#include <string>

namespace workbench::serve {

/// What went wrong in the add-in, and what it and the reader reported: the newest, each with a
/// number.
class EventLog {
public:
    /// Adds what a session has listed since the last time.
    void follow(const host::Session& session);

    /// Begins with a session of its own, which has listed nothing yet.
    void beginSession();

    void add(const host::ReadingWarning& warning);

    /// Adds a line of the program's own.
    void addWarning(const std::string& text);

    [[nodiscard]] const Json& json() const { return entries_; }

private:
    void add(Json entry);

    Json entries_ = Json::array();
    std::size_t newest_ = 0;
    std::size_t exceptions_ = 0;
    std::size_t misuses_ = 0;
    std::size_t messages_ = 0;
    std::size_t warnings_ = 0;
};

}  // namespace workbench::serve
