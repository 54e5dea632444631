#pragma once

// The clock by which a module waits, its dialogs for files and progress, and the storage that it
// waits for, for those who drive the host through a session.
#include "host/base/clock.h"
#include "host/cloud/storage_pace.h"
#include "host/ui/file_dialog.h"
#include "host/ui/progress_dialog.h"
