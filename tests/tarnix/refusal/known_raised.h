#pragma once

#include "host/session/session.h"

/// Expects that the add-in raised nothing but what it raises where a host call yields nothing: the
/// plain exception of a null handle, and the failures of numbers, lists and texts.
void expectOnlyKnownRaised(const host::Session& session);
