#include "tarnix/platform/module_path.h"

#include <Core/OSMacros.h>

#include <string>

/// A module that returns its path to the test that loads it.
extern "C" XI_EXPORT const char* probeModulePath() {
    static std::string path;
    path = tarnix::platform::modulePath();
    return path.c_str();
}
