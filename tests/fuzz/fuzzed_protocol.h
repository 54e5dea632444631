#pragma once

#include "tests/fuzz/fuzzed_session.h"
#include "tests/support/temporary_folder.h"

#include "workbench/serve/pages.h"
#include "workbench/serve/served_host.h"

#include <memory>
#include <string>

namespace fuzz {

/// A served host and one page of it, for all runs. Each run is lines of bytes that a page could
/// have sent as actions. At the end the add-in is not asked to stop: in a fuzzer, which keeps this
/// to its exit, the statics of a module that was loaded again are gone by then.
class FuzzedProtocol {
public:
    FuzzedProtocol();

    /// Does the actions. Returns what it found wrong: an exception that is no refusal, a patch that
    /// does not lead from the state that the page had to the one that is.
    std::string act(Bytes bytes);

private:
    std::string actOn(const std::string& line);
    std::string follow();

    test_support::TemporaryFolder folder_;
    workbench::serve::MainQueue queue_;
    workbench::serve::Pages pages_;
    std::shared_ptr<workbench::serve::Page> page_ = pages_.open();
    std::unique_ptr<workbench::serve::ServedHost> host_;
    std::shared_ptr<const workbench::serve::State> seen_;
};

}  // namespace fuzz
