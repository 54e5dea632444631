#pragma once

#include <Core/CoreAll.h>

namespace tarnix {

/// Carries out the command for models from the web: shows its palette, and makes it first where
/// there is none. A palette that is there keeps the place and size that the user gave it.
class OnLineLibraryExecuteHandler final : public adsk::core::CommandEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs) override;
};

/// Answers the start of the command for models from the web, which has no dialog.
class OnLineLibraryCreateEventHandler final : public adsk::core::CommandCreatedEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& eventArgs) override;

private:
    OnLineLibraryExecuteHandler executeHandler_;
};

}  // namespace tarnix
