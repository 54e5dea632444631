#pragma once

#include "host/session/session.h"

/// Whether an exception is what the add-in throws where a host call returns nothing: the plain
/// exception of a null handle, and the failures of numbers, lists and texts.
bool isKnown(const host::UncaughtException& thrown);

/// Expects that the add-in threw nothing but known exceptions.
void expectOnlyKnownThrown(const host::Session& session);

/// Expects that the add-in threw nothing but the plain exception of a null handle.
void expectOnlyPlainThrown(const host::Session& session);
