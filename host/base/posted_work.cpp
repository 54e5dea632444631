#include "host/base/posted_work.h"

#include <mutex>
#include <utility>

namespace host {
namespace {

// Of the process and not of a host: a thread may post at the moment at which the host ends.
std::mutex postMutex;
PostedWork* receiver = nullptr;

}  // namespace

PostedWork::PostedWork() {
    const std::lock_guard<std::mutex> lock(postMutex);
    receiver = this;
}

PostedWork::~PostedWork() {
    const std::lock_guard<std::mutex> lock(postMutex);
    receiver = nullptr;
}

std::vector<std::function<void()>> PostedWork::take() {
    const std::lock_guard<std::mutex> lock(postMutex);
    return std::exchange(waiting_, {});
}

void post(std::function<void()> work) {
    const std::lock_guard<std::mutex> lock(postMutex);
    if (receiver != nullptr) {
        receiver->waiting_.push_back(std::move(work));
    }
}

}  // namespace host
