#include "tarnix/platform/cursor.h"

namespace tarnix::platform {

// A program has no cursor of its own here: its window system shows one for each window.
WaitCursor::WaitCursor() { static_cast<void>(previous_); }

WaitCursor::~WaitCursor() { previous_ = nullptr; }

}  // namespace tarnix::platform
