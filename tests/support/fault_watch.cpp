#include "tests/support/fault_watch.h"

#include "tests/support/known_faults.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace test_support {
namespace {

using host::Misuse;
using host::UncaughtException;

std::string lineOf(const UncaughtException& thrown) {
    const std::string line = thrown.type + ": " + thrown.text + " in " + thrown.event;
    return thrown.inputId.empty() ? line : line + " of " + thrown.inputId;
}

std::string lineOf(const Misuse& misuse) { return misuse.operation + ": " + misuse.text; }

template <class Report>
std::string linesOf(const std::vector<Report>& reports) {
    std::string lines;
    for (const Report& each : reports) {
        lines += (lines.empty() ? "" : "\n") + lineOf(each);
    }
    return lines;
}

/// What is left of a list after its first reports.
template <class Report>
std::vector<Report> from(const std::vector<Report>& reports, std::size_t first) {
    return {reports.begin() + static_cast<std::ptrdiff_t>(std::min(first, reports.size())),
            reports.end()};
}

/// Takes out of both lists what is in both.
void match(std::vector<Misuse>& expected, std::vector<Misuse>& reported) {
    std::erase_if(expected, [&](const Misuse& each) {
        const auto found = std::ranges::find_if(reported, [&](const Misuse& other) {
            return other.operation == each.operation && other.text == each.text;
        });
        if (found == reported.end()) return false;
        reported.erase(found);
        return true;
    });
}

}  // namespace

template <class Report>
std::vector<Report> FaultWatch::accused(std::vector<Report> reports) const {
    if (known_ == KnownFaults::Excused) {
        std::erase_if(reports, [](const Report& each) { return isKnown(each); });
    }
    return reports;
}

const std::vector<UncaughtException>& FaultWatch::exceptions() {
    namedExceptions_ = host::uncaughtExceptions().size();
    return host::uncaughtExceptions();
}

std::vector<Misuse> FaultWatch::misuses() {
    std::vector<Misuse> all = accused(host::misuses());
    namedMisuses_ = all.size();
    return all;
}

void FaultWatch::forgetExceptions() {
    verifyExceptions();
    host::clearUncaughtExceptions();
    namedExceptions_ = 0;
}

void FaultWatch::expectMisuse(const std::string& operation, const std::string& text) {
    expected_.push_back({operation, text});
}

void FaultWatch::verify() {
    verifyExceptions();
    verifyMisuses();
    host::clearUncaughtExceptions();
    host::clearMisuses();
    *this = FaultWatch(known_);
}

void FaultWatch::verifyExceptions() {
    if (exceptionsAllowed_) return;
    EXPECT_EQ(describe(accused(from(host::uncaughtExceptions(), namedExceptions_))), "")
        << "thrown, and not named by the test";
}

void FaultWatch::verifyMisuses() {
    std::vector<Misuse> reported = from(accused(host::misuses()), namedMisuses_);
    match(expected_, reported);
    EXPECT_EQ(describe(reported), "") << "misused, and not named by the test";
    EXPECT_EQ(describe(expected_), "") << "expected by the test, and not misused";
}

std::string describe(const std::vector<UncaughtException>& exceptions) {
    return linesOf(exceptions);
}

std::string operationsOf(const std::vector<Misuse>& misuses) {
    std::string operations;
    for (const Misuse& each : misuses) {
        operations += (operations.empty() ? "" : " ") + each.operation;
    }
    return operations;
}

std::string describe(const std::vector<Misuse>& misuses) { return linesOf(misuses); }

}  // namespace test_support
