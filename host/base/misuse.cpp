#include "host/base/misuse.h"

#include "host/base/last_error.h"

#include <Core/Enums.h>

namespace host {
namespace {

std::vector<Misuse>& list() {
    static auto* instance = new std::vector<Misuse>;
    return *instance;
}

}  // namespace

const std::vector<Misuse>& misuses() { return list(); }

void clearMisuses() { list().clear(); }

bool misuse(const std::string& operation, const std::string& text) {
    list().push_back({.operation = operation, .text = text});
    return fail(adsk::core::BadApiCallError, operation + ": " + text);
}

bool misuseOfDeleted(const char* operation, const char* type) {
    misuse(operation, std::string("called on a deleted ") + type);
    fail(adsk::core::UnderlyingObjectDeletedError,
         std::string(operation) + ": the " + type + " was deleted or closed");
    return true;
}

}  // namespace host
