#pragma once

namespace tarnix::platform {

/// Shows the system's wait cursor while it lives, and the one that was there before again
/// afterwards. Where the system has no such cursor to set, nothing happens.
class WaitCursor {
public:
    WaitCursor();
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor();

private:
    void* previous_ = nullptr;  ///< the system's handle of the cursor before
};

}  // namespace tarnix::platform
