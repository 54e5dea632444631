// Planted: the workbench reaches past the session.
#include "host/design/document.h"
#include "host/session/session.h"
