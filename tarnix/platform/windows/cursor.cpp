#include "tarnix/platform/cursor.h"

#include <windows.h>

namespace tarnix::platform {

WaitCursor::WaitCursor() {
    // The cursor belongs to the system and is not released.
    const HCURSOR waiting = ::LoadCursorW(nullptr, MAKEINTRESOURCEW(32514));  // IDC_WAIT
    previous_ = ::SetCursor(waiting);
    // The result is the count of those who want it shown, which nobody needs.
    static_cast<void>(::ShowCursor(TRUE));
}

WaitCursor::~WaitCursor() {
    static_cast<void>(::ShowCursor(FALSE));
    static_cast<void>(::SetCursor(static_cast<HCURSOR>(previous_)));
}

}  // namespace tarnix::platform
