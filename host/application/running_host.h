#pragma once

#include "host/application/application_object.h"
#include "host/base/host_state.h"
#include "host/ui/host_setup.h"

namespace host {

/// The application of one host, a part of its state; null before it is made and after its end.
struct RunningApplication {
    adsk::core::Ptr<ApplicationObject> application;
};

/// A host from its start to its end, which are its construction and its destruction.
///
/// One runs at a time. At the end a running command ends first, and its handlers are notified;
/// whatever a module still holds is no longer valid then. The active document is left to the code
/// that made it.
class RunningHost {
public:
    /// Throws a `std::logic_error` where a host runs already.
    explicit RunningHost(const HostSetup& setup = {});
    RunningHost(const RunningHost&) = delete;
    RunningHost& operator=(const RunningHost&) = delete;
    ~RunningHost();

private:
    HostState state_;
};

}  // namespace host
