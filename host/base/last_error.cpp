#include "host/base/last_error.h"

#include "host/base/host_state.h"

#include <Core/Enums.h>

namespace host {

const LastError& lastError() { return HostState::required().lastError; }

bool fail(int code, const std::string& description) {
    if (HostState* host = HostState::current()) {
        host->lastError = {code, description};
    }
    return false;
}

bool notImplemented(const std::string& operation) {
    return fail(adsk::core::BadApiCallError, operation + " is not part of the stand-in host");
}

}  // namespace host
