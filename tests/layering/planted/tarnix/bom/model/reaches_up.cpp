// Planted: the model reaches for a tab, for the system and for the host.
#include <windows.h>

#include "host/session/user_actions.h"
#include "tarnix/bom/tabs/structure_tab.h"
