#include "tarnix/platform/cursor.h"

#include <windows.h>

namespace tarnix::platform {

WaitCursor::WaitCursor() {
    // The cursor belongs to the system and is not released.
    const HCURSOR waiting = ::LoadCursorW(nullptr, MAKEINTRESOURCEW(32514));  // IDC_WAIT
    previous_ = ::SetCursor(waiting);
    // The result is a count of the requests to show it, which is not needed.
    static_cast<void>(::ShowCursor(TRUE));
}

WaitCursor::~WaitCursor() {
    static_cast<void>(::ShowCursor(FALSE));
    static_cast<void>(::SetCursor(static_cast<HCURSOR>(previous_)));
}

}  // namespace tarnix::platform
