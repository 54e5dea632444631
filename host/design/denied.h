#pragma once

#include "host/base/gate.h"
#include "host/base/last_error.h"
#include "host/base/object.h"

#include <Core/Enums.h>

#include <string>

namespace host {

/// Begins an operation of something in a document: true when the gate refuses it, and when the
/// document or the thing itself has gone meanwhile, which is noted as the last error.
template <CallName Name, class Interface>
bool denied(const Object<Interface>& object) {
    if (refused<Name>()) {
        return true;
    }
    if (object.Object<Interface>::isValid()) {
        return false;
    }
    fail(adsk::core::UnderlyingObjectDeletedError,
         std::string(Name.text) + ": what it is asked of has been deleted or closed");
    return true;
}

}  // namespace host
