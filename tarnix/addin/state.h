#pragma once

#include <Core/CoreAll.h>

/// What every command of the add-in shares: the host, as `run` found it.
///
/// Both handles are set when the add-in starts and cleared when it has stopped. The host enters the
/// add-in on its main thread alone, so they need no lock.
namespace tarnix {

/// The host application, where all access to the host starts; null while the add-in is not started.
extern adsk::core::Ptr<adsk::core::Application> app;

/// The host's user interface, taken from `app`.
extern adsk::core::Ptr<adsk::core::UserInterface> ui;

}  // namespace tarnix
