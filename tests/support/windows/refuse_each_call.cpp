#include "tests/support/addin_test.h"
#include "tests/support/new_files.h"
#include "tests/support/refusal.h"

#include "host/session/session_folder.h"

#include <memory>
#include <optional>

namespace test_support {
namespace {

/// The sessions of one sweep, one after the other in the same folder: copying the add-in and
/// deleting it again takes as long as a run.
class SweepSessions {
public:
    explicit SweepSessions(host::SessionOptions options) : options_(std::move(options)) {
        options_.folder = std::make_shared<const host::SessionFolder>(
            host::SessionFolder::makeFresh(options_.scratchRoot));
        // The module goes with its session: a process could not hold thousands.
        options_.unloadAtEnd = true;
    }
    SweepSessions(const SweepSessions&) = delete;
    SweepSessions& operator=(const SweepSessions&) = delete;
    ~SweepSessions() { options_.folder->discard({}); }

    bool refuse(const RefusalSweep& sweep, std::uint64_t nth) {
        bool refused = false;
        {
            host::Session session(options_);
            if (!newFiles_) newFiles_.emplace(session.folder());
            sweep.prepare(session);
            refused = refuseOneCall(session, sweep, nth);
        }
        newFiles_->remove();
        return refused;
    }

private:
    host::SessionOptions options_;
    std::optional<NewFiles> newFiles_;
};

}  // namespace

std::uint64_t refuseEachCall(const RefusalSweep& sweep) {
    const int before = failuresSoFar();
    SweepSessions sessions(sweep.options);
    std::uint64_t nth = 1;
    for (; sessions.refuse(sweep, nth); ++nth) {
        if (failuresSoFar() - before >= kEnoughFailures) {
            return nth;
        }
    }
    return nth - 1;
}

}  // namespace test_support
