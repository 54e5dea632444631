#pragma once

#include <Core/Event.h>

#include <string>

/// Events that a module defines itself, above all to leave work from its threads to the host's own.
namespace adsk::core {

/// A custom event was fired.
class CustomEventArgs : public EventArgs {
public:
    static const char* classType();  ///< "adsk::core::CustomEventArgs"

    /// What `Application::fireCustomEvent` was called with, often JSON; may be empty.
    [[nodiscard]] virtual std::string additionalInfo() const = 0;
};

/// Notified of a custom event, on the host's own thread.
class CustomEventHandler : public EventHandlerOf<CustomEventArgs> {};

/// The event of `Application::registerCustomEvent`. Its name is the id that it was registered with.
class CustomEvent : public EventOf<CustomEventHandler> {
public:
    static const char* classType();  ///< "adsk::core::CustomEvent"
};

}  // namespace adsk::core
