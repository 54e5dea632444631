#pragma once

#include <Core/CoreAll.h>

/// The dialog "Tarnix Configuration", in which the user chooses the support provider: the default
/// one, or another one by its web address.
namespace tarnix {

/// @name Ids of the dialog's inputs
/// @{
inline constexpr const char* kProviderChoice = "choiceProvider";
inline constexpr const char* kProviderDescription = "helpdeskOtherDecription";
inline constexpr const char* kProviderAddress = "helpdeskOther";
/// @}

/// @name Places in the list of providers
/// @{
inline constexpr int kDefaultProvider = 0;
inline constexpr int kOtherProvider = 1;
/// @}

/// Makes the inputs and shows what is stored. Any address but the default one is another
/// provider's, the empty one too.
void buildConfigurationDialog(const adsk::core::Ptr<adsk::core::Command>& command);

}  // namespace tarnix
