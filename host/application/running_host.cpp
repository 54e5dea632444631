#include "host/application/running_host.h"

#include "host/base/documented_points.h"
#include "host/ui/dialogs/progress_dialog_object.h"

namespace host {

RunningHost::RunningHost(const HostSetup& setup) : state_(setup.clock) {
    state_.part<DocumentedPoints>() = setup.documented;
    state_.part<ui::ProgressDialogs>().longestWait = setup.longestWait;
    state_.part<RunningApplication>().application = make<ApplicationObject>(setup);
}

RunningHost::~RunningHost() {
    auto& running = state_.part<RunningApplication>();
    // Handlers run meanwhile, which find the application that ends.
    running.application->dispose();
    running.application = nullptr;
}

}  // namespace host
