#pragma once

#include <Core/Enums.h>

#include <string>

namespace host {

/// The last failure, as `Application::getLastError` tells it.
struct LastError {
    int code = 0;  ///< a value of `adsk::core::GenericErrors`
    std::string description;
};

LastError& lastError();

/// Notes a failing call, with a text that names what was wrong; always false, for `return
/// fail(...)`.
bool fail(int code, const std::string& description);

/// Notes a call of an operation that the stand-in does not have; always false.
bool notImplemented(const std::string& operation);

}  // namespace host
