#include "host/session/main_thread.h"

#include "host/application/main_queue.h"

#include <utility>

namespace host {

void postToMainThread(std::function<void()> work) { post(std::move(work)); }

void runPostedWork() {
    runPosted();
    stopIfRequested();
}

}  // namespace host
