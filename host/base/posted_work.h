#pragma once

#include <functional>
#include <vector>

namespace host {

/// What waits for the main thread of a host.
///
/// While it lives, `post` reaches it from any thread.
class PostedWork {
public:
    PostedWork();
    PostedWork(const PostedWork&) = delete;
    PostedWork& operator=(const PostedWork&) = delete;
    ~PostedWork();

    /// Takes out what was posted until now, in order.
    std::vector<std::function<void()>> take();

    friend void post(std::function<void()> work);

private:
    std::vector<std::function<void()>> waiting_;
};

/// Leaves work to the main thread of the host that lives. Any thread may call it; the work is done
/// in order, when the main thread comes to it. Without a host it is dropped, as is what a host that
/// ends had not come to.
void post(std::function<void()> work);

}  // namespace host
