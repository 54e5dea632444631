#include "tests/tarnix/settings/fake_module_path.h"

#include "tarnix/platform/module_path.h"

namespace tarnix::test {
namespace {

int questions = 0;

}  // namespace

std::string& modulePath() {
    static std::string path;
    return path;
}

int modulePathQuestions() { return questions; }

}  // namespace tarnix::test

// Found before the one in the library of the platform, which is then left out of the program.
std::string tarnix::platform::modulePath() {
    ++test::questions;
    return test::modulePath();
}
