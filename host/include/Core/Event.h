#pragma once

#include <Core/Base.h>

#include <memory>
#include <string>
#include <vector>

namespace adsk::core {

struct EventLink;

/// The root of all handlers. A module derives from the handler class of the event instead, such as
/// `CommandEventHandler`.
///
/// A handler belongs to the module, which keeps it alive for as long as it wants to be notified.
/// When it is destroyed it leaves every event that it was added to.
class EventHandler {
public:
    /// A handler that no event knows yet.
    EventHandler() = default;
    EventHandler(const EventHandler&) = delete;
    EventHandler& operator=(const EventHandler&) = delete;
    /// Leaves every event. Safe while a notification runs and after the host has ended.
    virtual ~EventHandler();

private:
    friend struct EventLink;
    std::vector<std::weak_ptr<EventLink>> links_;
};

/// Something that the host notifies its modules of. Each kind of event has a class of its own, to
/// which handlers of that kind are added.
class Event : public Base {
public:
    static const char* classType();  ///< "adsk::core::Event"

    /// The name of the event, such as "OnInputChanged".
    [[nodiscard]] virtual std::string name() const = 0;

    /// The object that fires it: the command, the definition or the user interface. Null once that
    /// has been deleted.
    [[nodiscard]] virtual Ptr<Base> sender() const = 0;
};

/// What one notification is about.
class EventArgs : public Base {
public:
    static const char* classType();  ///< "adsk::core::EventArgs"

    /// The event that this notification comes from.
    [[nodiscard]] virtual Ptr<Event> firingEvent() const = 0;
};

/// A handler of one kind of event; the named handler classes derive from it.
template <class Arguments>
class EventHandlerOf : public EventHandler {
public:
    /// Called each time the event fires. An exception that leaves it ends this call alone: the host
    /// records it and notifies the next handler.
    virtual void notify(const Ptr<Arguments>& eventArgs) = 0;
};

/// One kind of event; the named event classes derive from it.
template <class Handler>
class EventOf : public Event {
public:
    /// Adds a handler after those already there. True also for one that was added before: it stays
    /// where it is and is notified once. False for null.
    virtual bool add(Handler* handler) = 0;

    /// Removes a handler; it is not notified again, not even by a notification that is under way.
    /// False for one that was not added.
    virtual bool remove(Handler* handler) = 0;
};

}  // namespace adsk::core
