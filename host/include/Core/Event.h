#pragma once

#include <Core/Base.h>

#include <memory>
#include <string>
#include <vector>

namespace adsk::core {

struct EventLink;

/// What a module derives its handlers from, through the handler class of an event.
///
/// A handler belongs to the module, which keeps it alive for as long as it wants to be told. When
/// it is destroyed it leaves every event that it was added to.
class EventHandler {
public:
    EventHandler() = default;
    EventHandler(const EventHandler&) = delete;
    EventHandler& operator=(const EventHandler&) = delete;
    virtual ~EventHandler();

private:
    friend struct EventLink;
    std::vector<std::weak_ptr<EventLink>> links_;
};

/// Something that the host tells its modules. Each kind of event has a class of its own with `add`
/// and `remove` for the handlers of that kind.
class Event : public Base {
public:
    static const char* classType();

    /// The name of the event, such as "OnInputChanged".
    [[nodiscard]] virtual std::string name() const = 0;

    /// The object that fires it.
    [[nodiscard]] virtual Ptr<Base> sender() const = 0;
};

/// What a notification is about.
class EventArgs : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual Ptr<Event> firingEvent() const = 0;
};

}  // namespace adsk::core
