#include "tests/support/addin_test.h"
#include "tests/support/leak_check.h"
#include "tests/support/new_files.h"
#include "tests/support/refusal.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <exception>
#include <iostream>

// Each run is a copy of the process, made where the flow begins: a fresh session for the price of a
// fork, and a crash is one run's own.

namespace test_support {
namespace {

enum RunStatus : int { kPassed = 0, kFailed = 3, kNothingLeft = 4 };

int runOnce(host::Session& session, const RefusalSweep& sweep, std::uint64_t nth) {
    const int before = failuresSoFar();
    bool refused = false;
    try {
        refused = refuseOneCall(session, sweep, nth);
        EXPECT_FALSE(leaksFound()) << "memory is lost when host call " << nth << " is refused";
    } catch (const std::exception& error) {
        ADD_FAILURE() << "host call " << nth << " refused: " << error.what();
    }
    if (failuresSoFar() > before) {
        return kFailed;
    }
    return refused ? kPassed : kNothingLeft;
}

/// Runs once in a copy of the process; returns its exit status, or minus the signal that ended it.
int runInChild(host::Session& session, const RefusalSweep& sweep, std::uint64_t nth) {
    std::cout << std::flush;
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        const int status = runOnce(session, sweep, nth);
        std::cout << std::flush;
        std::fflush(nullptr);
        ::_exit(status);
    }
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child) {
        return kFailed;
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

}  // namespace

std::uint64_t refuseEachCall(const RefusalSweep& sweep) {
    host::Session session(sweep.options);
    sweep.prepare(session);
    prepareLeakReports();
    const NewFiles newFiles(session.folder());
    int failures = 0;
    for (std::uint64_t nth = 1;; ++nth) {
        const int status = runInChild(session, sweep, nth);
        newFiles.remove();
        if (status == kNothingLeft) {
            return nth - 1;
        }
        if (status != kPassed) {
            ADD_FAILURE() << "the run in which host call " << nth << " was refused ended with "
                          << status;
            if (++failures == kEnoughFailures) {
                return nth;
            }
        }
    }
}

}  // namespace test_support
