#pragma once

#include "tarnix/platform/shell.h"

#include <string>

namespace tarnix::platform {

/// What `ShellExecuteW` is given.
struct ShellRequest {
    const wchar_t* verb = nullptr;  ///< null for the program's own choice
    std::wstring text;
};

/// How the shell is asked for a target of this kind.
ShellRequest shellRequest(const std::string& target, ShellTarget kind);

}  // namespace tarnix::platform
