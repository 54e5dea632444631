#pragma once

#include "host/base/events.h"

#include <Core/CustomEvents.h>

#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace host {

class CustomEventArgsObject final : public Arguments<core::CustomEventArgs> {
public:
    CustomEventArgsObject(core::Ptr<core::Event> event, std::string additionalInfo)
        : Arguments(std::move(event)), additionalInfo_(std::move(additionalInfo)) {}

    [[nodiscard]] std::string additionalInfo() const override {
        return get<"additionalInfo">(additionalInfo_);
    }

private:
    std::string additionalInfo_;
};

using CustomEventObject = TypedEvent<core::CustomEvent>;

/// The events that modules registered, and what was fired and waits for the host's thread: the one
/// that made this.
class CustomEvents {
public:
    /// Makes an event; null where the id is in use.
    core::Ptr<CustomEventObject> add(const std::string& id, core::Base* sender);

    /// Deletes an event with what was fired of it; false where there is none.
    bool remove(const std::string& id);

    /// Leaves a notification to the host's thread; false where there is no such event. Any thread
    /// may call it.
    bool fire(const std::string& id, const std::string& additionalInfo);

    /// Notifies the handlers of what was fired until now; false where nothing was.
    bool deliver();

    [[nodiscard]] bool isHostThread() const { return std::this_thread::get_id() == thread_; }

    void dispose();

private:
    struct Fired {
        std::string id;
        std::string additionalInfo;
    };

    [[nodiscard]] core::Ptr<CustomEventObject> find(const std::string& id);

    const std::thread::id thread_ = std::this_thread::get_id();
    std::mutex mutex_;  ///< guards what follows; handles are copied on the host's thread alone
    std::map<std::string, core::Ptr<CustomEventObject>> events_;
    std::vector<Fired> fired_;
};

}  // namespace host
