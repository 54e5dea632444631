#include "host/application/main_queue.h"

#include "host/application/application.h"
#include "host/base/clock.h"
#include "host/base/gate.h"
#include "host/base/last_error.h"
#include "host/ui/dialogs/progress_dialog.h"

#include <Core/Utils.h>

#include <exception>
#include <mutex>
#include <utility>
#include <vector>

namespace host {
namespace {

struct Queue {
    std::mutex mutex;
    std::vector<std::function<void()>> posted;
    bool autoTerminate = true;
};

Queue& queue() {
    static auto* instance = new Queue;
    return *instance;
}

}  // namespace

void post(std::function<void()> work) {
    const std::lock_guard<std::mutex> lock(queue().mutex);
    queue().posted.push_back(std::move(work));
}

void runPosted() {
    std::vector<std::function<void()>> due;
    {
        const std::lock_guard<std::mutex> lock(queue().mutex);
        due.swap(queue().posted);
    }
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

bool unloadsAfterRun() { return queue().autoTerminate; }

void resetAutoTerminate() { queue().autoTerminate = true; }

namespace ui {

void forgetPosted() {
    const std::lock_guard<std::mutex> lock(queue().mutex);
    queue().posted.clear();
}

}  // namespace ui
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
    return host::queue().autoTerminate;
}

void autoTerminate(bool value) {
    if (host::refused<"adsk::autoTerminate">()) return;
    host::queue().autoTerminate = value;
}

void terminate() {
    if (host::refused<"adsk::terminate">()) return;
    host::notImplemented("adsk::terminate");
}

}  // namespace adsk
