#include "host/base/misuse.h"

#include "host/base/host_state.h"

#include <Core/Enums.h>

namespace host {

const std::vector<Misuse>& misuses() { return HostState::required().misuses; }

void clearMisuses() { HostState::required().misuses.clear(); }

bool misuse(const std::string& operation, const std::string& text) {
    if (HostState* host = HostState::current()) {
        const ModuleEntry entry = host->entries.empty() ? ModuleEntry() : host->entries.back();
        host->misuses.push_back(
            {.operation = operation, .text = text, .event = entry.event, .inputId = entry.inputId});
    }
    return fail(adsk::core::BadApiCallError, operation + ": " + text);
}

bool misuseOfDeleted(const char* operation, const char* type) {
    misuse(operation, std::string("called on a deleted ") + type);
    fail(adsk::core::UnderlyingObjectDeletedError,
         std::string(operation) + ": the " + type + " was deleted or closed");
    return true;
}

}  // namespace host
