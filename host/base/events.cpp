#include "host/base/events.h"

#include <algorithm>

namespace adsk::core {

bool EventLink::add(EventHandler* handler) {
    if (handler == nullptr) {
        return false;
    }
    if (!holds(handler)) {
        handlers.push_back(handler);
        std::erase_if(handler->links_, [](const auto& link) { return link.expired(); });
        handler->links_.push_back(weak_from_this());
    }
    return true;
}

bool EventLink::remove(EventHandler* handler) { return std::erase(handlers, handler) > 0; }

bool EventLink::holds(const EventHandler* handler) const {
    return std::find(handlers.begin(), handlers.end(), handler) != handlers.end();
}

EventHandler::~EventHandler() {
    for (const std::weak_ptr<EventLink>& link : links_) {
        if (const std::shared_ptr<EventLink> event = link.lock()) {
            event->remove(this);
        }
    }
}

}  // namespace adsk::core
