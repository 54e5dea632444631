#include "tarnix/addin/state.h"

namespace tarnix {

adsk::core::Ptr<adsk::core::Application> app;
adsk::core::Ptr<adsk::core::UserInterface> ui;

}  // namespace tarnix
