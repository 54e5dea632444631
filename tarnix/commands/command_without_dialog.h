#pragma once

#include <Core/CoreAll.h>

namespace tarnix {

/// Answers the start of a command that has no dialog: with nothing in its inputs the host executes
/// it at once, which `ExecuteHandler` answers.
///
/// One object, made when the command is registered, serves every press of its button. The host is
/// given the address of the handler inside it.
template <class ExecuteHandler>
class CommandWithoutDialog : public adsk::core::CommandCreatedEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& eventArgs) override {
        eventArgs->command()->execute()->add(&executeHandler_);
    }

private:
    ExecuteHandler executeHandler_;
};

}  // namespace tarnix
