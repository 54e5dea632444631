#include "host/application/custom_events.h"

#include "host/application/application_object.h"
#include "host/base/posted_work.h"

namespace host {
namespace {

void deliverInRunningHost() {
    if (const core::Ptr<ApplicationObject> application = ApplicationObject::current()) {
        application->customEvents().deliver();
    }
}

}  // namespace

core::Ptr<CustomEventObject> CustomEvents::add(const std::string& id, core::Base* sender) {
    const std::lock_guard<std::mutex> lock(mutex_);
    core::Ptr<CustomEventObject>& event = events_[id];
    if (event) return {};
    event = make<CustomEventObject>(id, sender);
    return event;
}

bool CustomEvents::remove(const std::string& id) {
    const core::Ptr<CustomEventObject> event = find(id);
    if (!event) return false;
    event->dispose();
    const std::lock_guard<std::mutex> lock(mutex_);
    events_.erase(id);
    std::erase_if(fired_, [&id](const Fired& each) { return each.id == id; });
    return true;
}

bool CustomEvents::fire(const std::string& id, const std::string& additionalInfo) {
    const std::lock_guard<std::mutex> lock(mutex_);
    if (events_.find(id) == events_.end()) return false;
    // One reminder for all that waits.
    if (fired_.empty()) {
        post(deliverInRunningHost);
    }
    fired_.push_back({.id = id, .additionalInfo = additionalInfo});
    return true;
}

bool CustomEvents::deliver() {
    std::vector<Fired> due;
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        due.swap(fired_);
    }
    for (const Fired& each : due) {
        // A handler may have removed it meanwhile.
        if (const core::Ptr<CustomEventObject> event = find(each.id)) {
            event->fire(make<CustomEventArgsObject>(event, each.additionalInfo));
        }
    }
    return !due.empty();
}

core::Ptr<CustomEventObject> CustomEvents::find(const std::string& id) {
    const std::lock_guard<std::mutex> lock(mutex_);
    const auto found = events_.find(id);
    return found == events_.end() ? nullptr : found->second;
}

void CustomEvents::dispose() {
    const std::lock_guard<std::mutex> lock(mutex_);
    for (const auto& [id, event] : events_) {
        event->dispose();
    }
    events_.clear();
    fired_.clear();
}

}  // namespace host
