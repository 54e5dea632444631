// Planted: the workbench goes behind the session.
#include "host/design/document.h"
#include "host/session/session.h"
