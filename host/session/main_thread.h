#pragma once

#include <functional>

/// What other threads leave to the main thread of a host, for programs that serve several users of
/// one session.
namespace host {

/// Leaves work to the main thread of the host that lives. Any thread may call it; the work is done
/// when the main thread calls `runPostedWork`, or while a module waits with `adsk::doEvents`. It is
/// dropped without a host and by one that ends.
void postToMainThread(std::function<void()> work);

/// Does what was posted until now, custom events that threads fired included, and what is scheduled
/// for now on the host's clock. For the main thread, outside of any action; what it throws passes
/// on.
void runPostedWork();

}  // namespace host
