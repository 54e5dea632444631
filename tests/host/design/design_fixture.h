#pragma once

#include "host/base/host_state.h"
#include "host/design/document.h"
#include "host/design/outline.h"

#include "tests/support/fault_watch.h"

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace host {

/// Opens a design for a test, and closes it when the test is over.
class DesignTest : public testing::Test {
    HostState host_;

protected:
    ~DesignTest() override;

    /// Opens the design that an outline draws.
    void open(const std::string& outline);
    void open(DesignData data);

    [[nodiscard]] adsk::core::Ptr<adsk::fusion::Component> root() const;

    /// The occurrence with that full path name, null where there is none.
    [[nodiscard]] adsk::core::Ptr<adsk::fusion::Occurrence> occurrence(
        const std::string& path) const;

    /// The component of the occurrence with that full path name.
    [[nodiscard]] adsk::core::Ptr<adsk::fusion::Component> component(const std::string& path) const;

    /// The full path names of all occurrences, each before what is in it.
    [[nodiscard]] std::vector<std::string> paths() const;

    /// What was misused so far. The test names it by asking.
    [[nodiscard]] std::vector<Misuse> misuses() { return faults.misuses(); }

    /// The operations that were misused so far, in one line. The test names them by asking.
    [[nodiscard]] std::string misused() { return test_support::operationsOf(faults.misuses()); }

    adsk::core::Ptr<adsk::core::Document> document;

    /// What the host reports against the test, and which of it the test expects.
    test_support::FaultWatch faults;
};

using Strings = std::vector<std::string>;

}  // namespace host
