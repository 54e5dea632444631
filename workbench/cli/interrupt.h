#pragma once

namespace workbench {

/// While it lives, Ctrl-C is noted and does not end the program; pressed a second time, it does.
/// Only one may live at a time.
class InterruptGuard {
public:
    InterruptGuard();
    InterruptGuard(const InterruptGuard&) = delete;
    InterruptGuard& operator=(const InterruptGuard&) = delete;
    ~InterruptGuard();

    /// True once Ctrl-C was pressed.
    [[nodiscard]] static bool interrupted();

private:
    void (*before_)(int);
};

}  // namespace workbench
