#include "workbench/cli/interrupt.h"

#include <csignal>

namespace workbench {
namespace {

volatile std::sig_atomic_t noted = 0;

extern "C" void noteInterrupt(int signal) {
    noted = 1;
    // A second Ctrl-C ends the program at once.
    static_cast<void>(std::signal(signal, SIG_DFL));
}

}  // namespace

InterruptGuard::InterruptGuard() : before_(std::signal(SIGINT, noteInterrupt)) { noted = 0; }

InterruptGuard::~InterruptGuard() { static_cast<void>(std::signal(SIGINT, before_)); }

bool InterruptGuard::interrupted() { return noted != 0; }

}  // namespace workbench
