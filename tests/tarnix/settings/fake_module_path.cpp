#include "tests/tarnix/settings/fake_module_path.h"

#include "tarnix/platform/module_path.h"

namespace tarnix::test {

std::string& modulePath() {
    static std::string path;
    return path;
}

}  // namespace tarnix::test

// Found before the one in the library of the platform, which is then left out of the program.
std::string tarnix::platform::modulePath() { return test::modulePath(); }
