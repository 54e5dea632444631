#pragma once

// What a person does to the inputs of a dialog, for those who drive the host through a session.
#include "host/ui/hands.h"
