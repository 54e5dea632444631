#pragma once

#include <string>

/// The operations that a stand-in process may answer, as the system itself answers them. The add-in
/// calls them in `tarnix::platform` alone; `direct/` hands them on to these, and `hosted/` asks the
/// process first.
namespace tarnix::platform::native {

/// As `tarnix::platform::openWithShell`.
bool openWithShell(const std::string& target);

}  // namespace tarnix::platform::native
