#pragma once

#include <Core/CoreAll.h>

namespace tarnix {

/// Answers the command for models from the web.
class OnLineLibraryCreateEventHandler final : public adsk::core::CommandCreatedEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& eventArgs) override;
};

}  // namespace tarnix
