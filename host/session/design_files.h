#pragma once

// Design files, for those who drive the host through a session.
#include "host/design/design_file.h"
