#pragma once

#include <string>

namespace tarnix::test {

/// What `platform::modulePath` yields in this program, in the place of the program's own path.
std::string& modulePath();

}  // namespace tarnix::test
