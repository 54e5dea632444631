#pragma once

#include "host/base/misuse.h"

namespace host {

/// What a module does in answer to an action of the user does not end, and was ended by the host:
/// commands that start each other, changes that lead to changes. The action itself was possible.
class EndlessError : public MisuseError {
public:
    using MisuseError::MisuseError;
};

}  // namespace host
