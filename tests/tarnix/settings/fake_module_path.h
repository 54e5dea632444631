#pragma once

#include <string>

namespace tarnix::test {

/// What `platform::modulePath` returns in this program, in the place of the program's path.
std::string& modulePath();

/// How often it was asked for: once for each time that the settings are read or written.
int modulePathQuestions();

}  // namespace tarnix::test
