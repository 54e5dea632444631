#include "host/application/main_queue.h"

#include "host/application/application_object.h"
#include "host/base/clock.h"
#include "host/base/gate.h"
#include "host/base/host_state.h"
#include "host/base/last_error.h"
#include "host/ui/dialogs/progress_dialog_object.h"

#include <Core/Utils.h>

#include <exception>
#include <functional>
#include <utility>
#include <vector>

namespace host {
namespace {

/// What the module that runs has asked for, a part of the host's state.
struct ModuleRequests {
    bool unloadAfterRun = true;
    bool terminate = false;
    std::function<void()> stop;
};

}  // namespace

void runPosted() {
    HostState* host = HostState::current();
    if (host == nullptr) return;
    const std::vector<std::function<void()>> due = host->posted.take();
    const gate::Outside outside;
    const auto work = [&due] {
        for (const std::function<void()>& each : due) {
            each();
        }
        clock::runDue();
        ui::endLongWaits();
    };
    const core::Ptr<ApplicationObject> application = ApplicationObject::current();
    if (!application) {
        work();
        return;
    }
    ui::CommandRunner& runner = application->ui().runner();
    runner.whileWaiting([&] {
        work();
        runner.drainRequests();
    });
}

bool unloadsAfterRun() {
    const auto* requests = HostState::currentPart<ModuleRequests>();
    return requests == nullptr || requests->unloadAfterRun;
}

void setUnloadsAfterRun(bool value) {
    if (auto* requests = HostState::currentPart<ModuleRequests>()) {
        requests->unloadAfterRun = value;
    }
}

void setModuleStop(std::function<void()> stop) {
    if (auto* requests = HostState::currentPart<ModuleRequests>()) {
        requests->stop = std::move(stop);
    }
}

void stopIfRequested() {
    auto* requests = HostState::currentPart<ModuleRequests>();
    if (requests == nullptr || gate::isModuleRunning()) return;
    if (std::exchange(requests->terminate, false) && requests->stop) {
        requests->stop();
    }
}

}  // namespace host

namespace adsk {

void doEvents() {
    if (host::refused<"adsk::doEvents">()) return;
    try {
        host::runPosted();
    } catch (const std::exception& error) {
        // What was posted is not the module's: it must not end in the module that waits.
        host::misuse("adsk::doEvents", error.what());
    }
}

bool autoTerminate() {
    if (host::refused<"adsk::autoTerminate">()) return {};
    return host::unloadsAfterRun();
}

void autoTerminate(bool value) {
    if (host::refused<"adsk::autoTerminate">()) return;
    host::setUnloadsAfterRun(value);
}

void terminate() {
    if (host::refused<"adsk::terminate">()) return;
    if (auto* requests = host::HostState::currentPart<host::ModuleRequests>()) {
        requests->terminate = true;
    }
}

}  // namespace adsk
