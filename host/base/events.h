#pragma once

#include "host/base/dispatcher.h"
#include "host/base/object.h"

#include <Core/Event.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace adsk::core {

/// The handlers of one event. Event and handlers know each other through it, so that either may be
/// destroyed first.
struct EventLink : std::enable_shared_from_this<EventLink> {
    std::vector<EventHandler*> handlers;

    /// Adds a handler after the others; one that is there already stays where it is. False for
    /// null.
    bool add(EventHandler* handler);

    /// Removes a handler; false when it was not there.
    bool remove(EventHandler* handler);

    [[nodiscard]] bool holds(const EventHandler* handler) const;
};

}  // namespace adsk::core

namespace host {

/// What a notification carries; the arguments of each event derive from it.
template <class Interface>
class Arguments : public Object<Interface> {
public:
    explicit Arguments(core::Ptr<core::Event> event) : event_(std::move(event)) {}

    [[nodiscard]] core::Ptr<core::Event> firingEvent() const override {
        return this->template get<"EventArgs::firingEvent">(event_);
    }

private:
    core::Ptr<core::Event> event_;
};

/// The class that `EventOf` or `EventHandlerOf` was instantiated with, as a pointer to it.
template <class Handler>
Handler* handlerOf(const core::EventOf<Handler>* event);
template <class ArgumentsInterface>
ArgumentsInterface* argumentsOf(const core::EventHandlerOf<ArgumentsInterface>* handler);

/// An event of the public API.
///
/// The sender is not owned: an event never outlives the notifications of what fires it.
template <class Interface>
class TypedEvent final : public Object<Interface> {
public:
    using Handler = std::remove_pointer_t<decltype(handlerOf(static_cast<Interface*>(nullptr)))>;
    using ArgumentsInterface =
        std::remove_pointer_t<decltype(argumentsOf(static_cast<Handler*>(nullptr)))>;

    TypedEvent(std::string name, core::Base* sender) : name_(std::move(name)), sender_(sender) {}

    [[nodiscard]] std::string name() const override {
        return this->template get<"Event::name">(name_);
    }

    [[nodiscard]] core::Ptr<core::Base> sender() const override {
        if (closed<"Event::sender">(*this)) return {};
        return core::Ptr<core::Base>(sender_);
    }

    bool add(Handler* handler) override {
        if (closed<"Event::add">(*this)) return false;
        return link_->add(handler);
    }

    bool remove(Handler* handler) override {
        if (closed<"Event::remove">(*this)) return false;
        return link_->remove(handler);
    }

    /// Deletes the event with what fires it. A notification that runs goes on.
    void dispose() {
        sender_ = nullptr;
        this->invalidate();
    }

    [[nodiscard]] bool hasHandlers() const { return !link_->handlers.empty(); }

    /// Notifies all handlers in the order they were added. One that throws is recorded and does not
    /// keep the others from being notified; one that is removed while another runs is skipped.
    /// Returns false when any threw.
    bool fire(const core::Ptr<ArgumentsInterface>& arguments, const std::string& inputId = "") {
        const std::shared_ptr<core::EventLink> link = link_;
        const std::vector<core::EventHandler*> handlers = link->handlers;
        bool quiet = true;
        for (core::EventHandler* handler : handlers) {
            if (link->holds(handler)) {
                // Only `add` fills the list, so each entry is of this event's handler class.
                auto* typed = static_cast<Handler*>(handler);
                quiet &= enterModule(name_, inputId, [&] { typed->notify(arguments); });
            }
        }
        return quiet;
    }

private:
    std::string name_;
    core::Base* sender_;
    std::shared_ptr<core::EventLink> link_ = std::make_shared<core::EventLink>();
};

/// Deletes events with what fires them, in this order.
template <class... Interfaces>
void disposeEvents(const core::Ptr<TypedEvent<Interfaces>>&... events) {
    (events->dispose(), ...);
}

}  // namespace host
