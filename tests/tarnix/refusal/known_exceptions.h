#pragma once

#include "host/session/session.h"

/// Expects that the add-in threw nothing but what it throws where a host call returns nothing: the
/// plain exception of a null handle, and the failures of numbers, lists and texts.
void expectOnlyKnownThrown(const host::Session& session);

/// Expects that the add-in threw nothing but the plain exception of a null handle.
void expectOnlyPlainThrown(const host::Session& session);
